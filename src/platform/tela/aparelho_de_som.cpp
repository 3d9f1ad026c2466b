#include "platform/tela/aparelho_de_som.h"

#include "platform/base/caminhos.h"

#include <SDL.h>
#include <cstdio>

namespace verdalia {

namespace {
constexpr int amostras_por_segundo = 22050;
#ifdef __EMSCRIPTEN__
constexpr int amostras_por_vez = 2048; // o som divide com o jogo a vez da página, e não pode faltar
#else
constexpr int amostras_por_vez = 512;
#endif
constexpr std::int64_t bytes_por_segundo = std::int64_t{amostras_por_segundo} * 2;
} // namespace

bool AparelhoDeSom::abre() {
    if (tentou_) return aberto_;
    tentou_ = true;
    aberto_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 &&
              Mix_OpenAudioDevice(amostras_por_segundo, AUDIO_S16SYS, 1, amostras_por_vez, nullptr, 0) == 0;
    if (!aberto_)
        std::fprintf(stderr, "verdalia: sem aparelho de som (%s); o jogo segue em silêncio\n", SDL_GetError());
    return aberto_;
}

void AparelhoDeSom::solta() {
    Mix_HaltChannel(-1);
    Mix_HaltMusic();
    Mix_FreeChunk(som_);
    Mix_FreeMusic(musica_);
    som_ = nullptr;
    musica_ = nullptr;
}

AparelhoDeSom::~AparelhoDeSom() {
    if (!aberto_) return;
    solta();
    Mix_CloseAudio();
}

int AparelhoDeSom::toca(const std::string& caminho) {
    if (!abre()) return 0;
    solta();
    const auto arquivo = acha(caminho);
    if (!arquivo) {
        std::fprintf(stderr, "verdalia: som que falta: %s\n", caminho.c_str());
        return 0;
    }
    som_ = Mix_LoadWAV(arquivo->c_str());
    if (som_ != nullptr) {
        Mix_PlayChannel(0, som_, 0);
        return static_cast<int>(som_->alen * std::int64_t{1000} / bytes_por_segundo);
    }
    musica_ = Mix_LoadMUS(arquivo->c_str());
    if (musica_ == nullptr) {
        std::fprintf(stderr, "verdalia: som que não pôde ser lido: %s\n", caminho.c_str());
        return 0;
    }
    Mix_PlayMusic(musica_, 0);
    return static_cast<int>(Mix_MusicDuration(musica_) * 1000);
}

} // namespace verdalia
