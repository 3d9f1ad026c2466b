#include "platform/tela/controle.h"

#include "platform/tela/laco_interno.h"

#include <algorithm>

namespace verdalia {

Controle::Controle(Tela& tela, std::string nome_dado, int indice_dado)
    : dona(tela), nome(std::move(nome_dado)), indice(indice_dado) {
    dona.controles.push_back(this);
}

Controle::~Controle() {
    std::erase(dona.controles, this);
    esquece_controle(this);
}

Retangulo Controle::lugar() const {
    Retangulo r{esquerda, topo, largura, altura};
    if (pai != nullptr) {
        const Retangulo de_fora = pai->lugar();
        r.x += de_fora.x;
        r.y += de_fora.y;
    }
    return r;
}

void Controle::fica_em(const Retangulo& onde) {
    esquerda = onde.x;
    topo = onde.y;
    largura = onde.largura;
    altura = onde.altura;
}

bool Controle::a_vista() const {
    return visivel && (pai == nullptr || pai->a_vista());
}

bool Controle::interage() const {
    return ativo && a_vista() && (arrasta || ((clique || botao) && !so_do_mouse));
}

void Controle::aciona() {
    if (clique) clique();
}

void Controle::pinta(Pintor& p, const Retangulo& r) {
    p.retangulo(r, cor_fundo);
    if (figura) p.imagem(*figura, r);
}

bool Controle::em_foco() const {
    return dona.foco == this;
}
bool Controle::sob_o_mouse() const {
    return estado_do_laco.sob == this && estado_do_laco.arrastado == nullptr;
}
bool Controle::apertado() const {
    return estado_do_laco.apertado == this && estado_do_laco.sob == this;
}

Temporizador::Temporizador(Tela& tela) : dona(tela) {
    dona.temporizadores.push_back(this);
}
Temporizador::~Temporizador() {
    std::erase(dona.temporizadores, this);
}

} // namespace verdalia
