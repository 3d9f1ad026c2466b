// O aparelho de som: SDL2_mixer, com um canal de voz e efeitos e um de música (MIDI).
#pragma once
#include "platform/tela/cores.h"

#include <SDL_mixer.h>
#include <string>

namespace verdalia {

struct AparelhoDeSom {
    AparelhoDeSom() = default;
    ~AparelhoDeSom();
    AparelhoDeSom(const AparelhoDeSom&) = delete;
    AparelhoDeSom& operator=(const AparelhoDeSom&) = delete;

    // Toca um arquivo pelo caminho do jogo, cortando o que toca; devolve a duração em ms. Sem aparelho, ou sem o
    // arquivo, 0: o jogo segue em silêncio.
    int toca(const std::string& caminho);

private:
    bool abre();
    void solta();

    bool tentou_ = false, aberto_ = false;
    Mix_Chunk* som_ = nullptr;
    Mix_Music* musica_ = nullptr;
};

} // namespace verdalia
