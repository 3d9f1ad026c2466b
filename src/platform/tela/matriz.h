// Matriz de controles: um mapa do número do jogo para o controle, com elementos criados e destruídos à vontade.
#pragma once
#include "platform/tela/tela.h"

#include <map>
#include <memory>

namespace verdalia {

template <class C> struct Matriz {
    Matriz(Tela& tela, std::string nome_comum) : dona(tela), nome(std::move(nome_comum)) {}

    // Cria o elemento `i` por cima dos demais; se já existe, devolve o que está lá.
    C& cria(int i) {
        auto& lugar = elementos[i];
        if (!lugar) lugar = std::make_unique<C>(dona, nome, i);
        return *lugar;
    }
    // O elemento tem de existir; senão std::out_of_range.
    C& operator()(int i) { return *elementos.at(i); }
    bool existe(int i) const { return elementos.contains(i); }
    // Tira o elemento da tela; pode ser chamada de dentro de um evento dele. Sem efeito se não existe.
    void destroi(int i) {
        auto lugar = elementos.find(i);
        if (lugar == elementos.end()) return;
        dona.descarta(std::move(lugar->second));
        elementos.erase(lugar);
    }
    auto begin() const { return elementos.begin(); }
    auto end() const { return elementos.end(); }

    Tela& dona;
    std::string nome;
    std::map<int, std::unique_ptr<C>> elementos;
};

} // namespace verdalia
