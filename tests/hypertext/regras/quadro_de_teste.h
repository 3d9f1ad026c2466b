// Um quadro em que cada letra mede 100 e cada linha 20 por ponto; o que se imprime fica escrito.
#pragma once
#include "hypertext/regras/motor.h"

#include <vector>

namespace verdalia {

struct QuadroDeTeste : Quadro {
    double largura = 5000, alto = 3000;
    std::vector<std::string> impressos; // "x,y:texto", com "*" depois do texto vermelho e sublinhado

    double largura_do_texto(std::string_view texto) override { return 100.0 * static_cast<double>(texto.size()); }
    double altura_da_linha() override { return 20 * corpo; }
    double largura_interna() override { return largura; }
    double altura_interna() override { return alto; }
    void imprime(std::string_view texto) override {
        impressos.push_back(std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)) + ":" +
                            std::string(texto) + (vermelho && sublinhado ? "*" : ""));
        x += largura_do_texto(texto);
    }
    void limpa() override {
        impressos.clear();
        x = y = 0;
    }
};

} // namespace verdalia
