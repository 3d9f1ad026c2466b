#include "platform/tela/tela.h"

#include "platform/tela/laco_interno.h"

#include <algorithm>
#include <stdexcept>

namespace verdalia {

namespace {

std::span<const FabricaDeTela> fabricas;
void (*ao_fechar)() = nullptr;
bool (*ao_guardar)() = nullptr;

constexpr double altura_do_titulo = 32;
constexpr double borda_do_dialogo = 8;

Carregada* achada(TelaId id) {
    for (Carregada& c : estado_do_laco.pilha)
        if (c.id == id) return &c;
    return nullptr;
}

void pinta_moldura(const Tela& t, Pintor& p) {
    const double x = t.origem_x(), y = t.origem_y(), b = borda_do_dialogo;
    const Retangulo fora{x - b, y - altura_do_titulo - b, t.largura + 2 * b, t.altura + altura_do_titulo + 2 * b};
    p.redondo({fora.x + 4, fora.y + 5, fora.largura, fora.altura}, 12, {0x43, 0x27, 0x1a});
    p.moldura(fora, 12, 1.5, cor_madeira_escura, cor_madeira);
    p.redondo({fora.x + 9, fora.y + 3, fora.largura - 18, 4}, 2, cor_madeira_clara);
    const Letra letra{.familia = Familia::legenda, .corpo = 13, .negrito = true, .cor = cor_tinta_clara};
    p.texto_em(t.titulo, {x + 4, y - altura_do_titulo - 2, t.largura - 40, altura_do_titulo}, letra, Alinha::esquerda);
    if (t.fechavel) {
        const Retangulo caixa = t.caixa_de_fechar();
        p.moldura(caixa, 6, 1.5, cor_madeira_escura, cor_papel_claro);
        p.texto_em("×", {caixa.x, caixa.y - 2, caixa.largura, caixa.altura}, {.corpo = 17, .negrito = true});
    }
}

// O lugar que cabe à tela na pilha: um diálogo fica por cima de tudo; uma tela inteira, logo abaixo dos diálogos
// abertos.
void sobe_na_pilha(TelaId id) {
    auto& pilha = estado_do_laco.pilha;
    const auto aqui = std::find_if(pilha.begin(), pilha.end(), [id](const Carregada& c) { return c.id == id; });
    auto ate = pilha.end();
    if (!aqui->tela->dialogo)
        ate = std::find_if(aqui + 1, pilha.end(), [](const Carregada& c) { return c.a_vista && c.tela->dialogo; });
    std::rotate(aqui, aqui + 1, ate);
}

} // namespace

Tela::Tela(std::string nome_dado) : nome(std::move(nome_dado)) {}
Tela::~Tela() = default;

void Tela::pede_fechar() {
    if (dialogo) {
        if (fechavel) descarrega(*this);
    } else if (ao_fechar != nullptr) {
        ao_fechar();
    }
}

Controle* Tela::controle(std::string_view nome_procurado, int indice) const {
    for (Controle* c : controles)
        if (c->indice == indice && c->nome == nome_procurado) return c;
    return nullptr;
}

void Tela::descarta(std::unique_ptr<Controle> controle) {
    std::erase(controles, controle.get());
    esquece_controle(controle.get());
    descartados.push_back(std::move(controle));
}

double Tela::origem_y() const {
    if (!dialogo) return (altura_logica - altura) / 2;
    const double margem = borda_do_dialogo + 4;
    const double em_cima = altura_do_titulo + margem, embaixo = altura_logica - altura - margem;
    if (evita.altura == 0) return (altura_logica - altura + altura_do_titulo) / 2;
    return evita.y + evita.altura < embaixo - em_cima ? embaixo : em_cima;
}

Retangulo Tela::caixa_de_fechar() const {
    return {origem_x() + largura - 28, origem_y() - altura_do_titulo + 1, 28, 26};
}

void Tela::pinta(Pintor& p) {
    if (dialogo) pinta_moldura(*this, p);
    const Retangulo dentro = miolo();
    if (!fundo || fundo->falta) p.retangulo(dentro, cor_fundo);
    if (fundo) p.imagem(*fundo, dentro);
    for (Controle* c : controles) {
        if (!c->a_vista()) continue;
        Retangulo r = c->lugar();
        r.x += dentro.x;
        r.y += dentro.y;
        c->pinta(p, r);
    }
}

void arruma(Tela& tela, std::span<const Lugar> lugares) {
    for (const Lugar& l : lugares) {
        Controle* c = tela.controle(l.nome, l.indice);
        if (c == nullptr) throw std::logic_error(tela.nome + ": não há controle " + l.nome);
        c->fica_em({l.esquerda, l.topo, l.largura, l.altura});
        c->texto = l.texto;
        c->dica = l.dica;
    }
}

void registra_telas(std::span<const FabricaDeTela> todas, void (*ao_fechar_a_janela)(), bool (*grava_sem_perguntar)()) {
    fabricas = todas;
    ao_fechar = ao_fechar_a_janela;
    ao_guardar = grava_sem_perguntar;
}

bool guarda_o_jogo() {
    return ao_guardar == nullptr || ao_guardar();
}

void encerra() {
    termina(!guarda_o_jogo());
}

Tela& carrega(TelaId id) {
    if (Carregada* ja = achada(id)) return *ja->tela;
    for (const FabricaDeTela& f : fabricas) {
        if (f.id != id) continue;
        estado_do_laco.pilha.insert(estado_do_laco.pilha.begin(), {id, f.cria()});
        Tela& nova = *estado_do_laco.pilha.front().tela;
        nova.Form_Load();
        return nova;
    }
    throw std::logic_error("tela sem fábrica");
}

bool carregada(TelaId id) {
    return achada(id) != nullptr;
}

void mostra(TelaId id) {
    Tela& tela = carrega(id);
    achada(id)->a_vista = true;
    sobe_na_pilha(id);
    desiste_do_arraste();
    estado_do_laco.sob = nullptr;
    estado_do_laco.foco_x = -1;
    estado_do_laco.sujo = true;
    apaga_dica();
    tela.Form_Activate();
    if (!tela.dialogo) return;
    // Enter responde sem que se procure o botão.
    for (Controle* c : tela.controles)
        if (tela.foco == nullptr && c->interage()) tela.foco = c;
    tela.padrao = tela.foco;
}

void esconde(Tela& tela) {
    for (Carregada& c : estado_do_laco.pilha)
        if (c.tela.get() == &tela) c.a_vista = false;
    estado_do_laco.sob = nullptr;
    estado_do_laco.sujo = true;
}

void descarrega(Tela& tela) {
    auto& pilha = estado_do_laco.pilha;
    const auto aqui =
        std::find_if(pilha.begin(), pilha.end(), [&tela](const Carregada& c) { return c.tela.get() == &tela; });
    if (aqui == pilha.end()) return;
    tela.Form_Unload();
    for (Controle* c : tela.controles) esquece_controle(c);
    // O que o jogador fez enquanto a tela falava era para ela, e não para a que vem.
    if (!tela.dialogo) esquece_o_que_espera();
    estado_do_laco.telas_descartadas.push_back(std::move(aqui->tela));
    pilha.erase(aqui);
    estado_do_laco.sujo = true;
}

Tela* tela_ativa() {
    for (auto c = estado_do_laco.pilha.rbegin(); c != estado_do_laco.pilha.rend(); ++c)
        if (c->a_vista) return c->tela.get();
    return nullptr;
}

void descarrega_tudo() {
    while (!estado_do_laco.pilha.empty()) descarrega(*estado_do_laco.pilha.back().tela);
    estado_do_laco.telas_descartadas.clear();
}

} // namespace verdalia
