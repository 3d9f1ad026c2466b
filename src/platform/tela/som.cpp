#include "platform/tela/som.h"

#include "platform/tela/laco.h"

namespace verdalia {

void sndPlaySoundA(std::string_view caminho, int modo) {
    const int duracao = hospedeiro->toca(std::string(caminho));
    if (modo == espera_o_fim && duracao > 0) espera_som(duracao);
}

void mciExecute(std::string_view comando) {
    constexpr std::string_view toca = "Play ";
    if (comando.starts_with(toca)) hospedeiro->toca(std::string(comando.substr(toca.size())));
}

} // namespace verdalia
