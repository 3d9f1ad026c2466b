// O som: um canal só; cada som novo corta o anterior.
#pragma once
#include <string_view>

namespace verdalia {

inline constexpr int espera_o_fim = 0;
inline constexpr int sem_esperar = 1;

// Toca um arquivo WAV pelo caminho do jogo; `espera_o_fim` só volta quando o som acaba. Sem aparelho de som, ou com
// o arquivo faltando, volta logo.
void sndPlaySoundA(std::string_view caminho, int modo);
// Executa "Play " seguido de um caminho (WAV, MIDI), sem esperar. Outro comando não faz nada.
void mciExecute(std::string_view comando);

} // namespace verdalia
