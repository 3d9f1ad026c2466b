// O lugar das telas que ainda não existem: avisa e volta ao centro do jogo.
#pragma once
#include "flow/comum/telas.h"

namespace verdalia {

struct em_construcao : Tela {
    bool avisou = false;

    em_construcao() : Tela("em_construcao") {}
    void Form_Load() override;
    void Form_Activate() override;
};

} // namespace verdalia
