#include "flow/em_construcao.h"

#include "flow/comum/dialogos.h"

namespace verdalia {

void em_construcao::Form_Load() {
    fundo = carrega_figura("\\back_in.jpg");
}

void em_construcao::Form_Activate() {
    if (avisou) return;
    avisou = true;
    avisa("Em construção", "Esta parte do jogo ainda está em construção. Vamos voltar.");
    descarrega(*this);
    mostra(TelaId::INTRONEW);
}

} // namespace verdalia
