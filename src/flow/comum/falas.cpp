#include "flow/comum/falas.h"

#include "data/estado.h"

namespace verdalia {

void fala(const std::string& clipe, int modo) {
    som_atual = dir_audio + clipe;
    if (som_ligado) sndPlaySoundA(som_atual, modo);
}

void efeito(const std::string& clipe, int modo) {
    som_atual = clipe;
    sndPlaySoundA(som_atual, modo);
}

void blip() {
    efeito("\\blip.wav", espera_o_fim);
}

void blip_com_voz() {
    if (som_ligado) blip();
}

void silencia(int modo) {
    som_atual = "\\silencio.wav";
    if (som_ligado) sndPlaySoundA(som_atual, modo);
}

} // namespace verdalia
