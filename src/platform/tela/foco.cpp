// O teclado: Tab e setas levam o foco, Enter e espaço acionam, Enter também pega e larga um arraste, Esc desiste.
#include "platform/tela/botao.h"
#include "platform/tela/laco_interno.h"

#include "platform/base/texto.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>

namespace verdalia {

namespace {

struct Ponto {
    double x = 0, y = 0;
};

Ponto meio_de(const Controle& c, const Retangulo& r) {
    return {c.dona.origem_x() + r.x + r.largura / 2, c.dona.origem_y() + r.y + r.altura / 2};
}

Ponto meio(const Controle& c) {
    return meio_de(c, c.lugar());
}

Ponto direcao(int codigo) {
    switch (codigo) {
    case SDLK_LEFT:
        return {-1, 0};
    case SDLK_RIGHT:
        return {1, 0};
    case SDLK_UP:
        return {0, -1};
    case SDLK_DOWN:
        return {0, 1};
    default:
        return {};
    }
}

bool e_seta(int codigo) {
    const Ponto d = direcao(codigo);
    return d.x != 0 || d.y != 0;
}

// O ponto mais perto na direção da seta; desviar para o lado custa o dobro, e o que fica a mais de 45° só serve
// quando não há outro. -1 quando não há nenhum.
int mais_perto(const std::vector<Ponto>& pontos, Ponto de, Ponto d) {
    constexpr double fora_do_rumo = 10000;
    int melhor = -1;
    double custo_melhor = 0;
    for (std::size_t i = 0; i < pontos.size(); ++i) {
        const double dx = pontos[i].x - de.x, dy = pontos[i].y - de.y;
        const double frente = dx * d.x + dy * d.y, lado = std::abs(dx * d.y) + std::abs(dy * d.x);
        if (frente < 1) continue;
        const double custo = frente + 2 * lado + (lado > frente ? fora_do_rumo : 0);
        if (melhor < 0 || custo < custo_melhor) {
            melhor = static_cast<int>(i);
            custo_melhor = custo;
        }
    }
    return melhor;
}

// O próximo (ou o anterior) da roda; `agora` -1 começa na ponta.
int vizinho(int agora, int total, bool para_tras) {
    if (agora < 0) return para_tras ? total - 1 : 0;
    return (agora + (para_tras ? total - 1 : 1)) % total;
}

void mostra_foco() {
    e.foco_visivel = true;
    apaga_dica();
    arma_dica(tela_ativa()->foco, true);
    e.sujo = true;
}

// Os controles que o teclado alcança, na ordem em que se leem: painel por painel, fileira por fileira.
std::vector<Controle*> em_ordem_de_leitura(const Tela& tela) {
    constexpr double mesma_fileira = 14; // pixels entre os meios de controles lado a lado
    std::vector<Controle*> ordem;
    std::copy_if(tela.controles.begin(), tela.controles.end(), std::back_inserter(ordem),
                 [](const Controle* c) { return c->interage(); });
    const auto painel = [&tela](const Controle* c) {
        const Ponto p = meio(*c);
        return std::find_if(tela.paineis.begin(), tela.paineis.end(),
                            [p](const Retangulo& r) { return r.contem(p.x, p.y); }) -
               tela.paineis.begin();
    };
    std::stable_sort(ordem.begin(), ordem.end(), [&](const Controle* a, const Controle* b) {
        return std::pair(painel(a), meio(*a).y) < std::pair(painel(b), meio(*b).y);
    });
    for (auto primeiro = ordem.begin(); primeiro != ordem.end();) {
        const auto fim = std::find_if(primeiro, ordem.end(), [&](const Controle* c) {
            return painel(c) != painel(*primeiro) || meio(*c).y > meio(**primeiro).y + mesma_fileira;
        });
        std::stable_sort(primeiro, fim, [](const Controle* a, const Controle* b) { return meio(*a).x < meio(*b).x; });
        primeiro = fim;
    }
    return ordem;
}

void leva_foco(const Tecla& t) {
    Tela& tela = *tela_ativa();
    const std::vector<Controle*> candidatos = em_ordem_de_leitura(tela);
    if (candidatos.empty()) return;
    std::vector<Ponto> pontos;
    pontos.reserve(candidatos.size());
    for (const Controle* c : candidatos) pontos.push_back(meio(*c));
    const auto lugar = std::find(candidatos.begin(), candidatos.end(), tela.foco);
    const int agora = lugar == candidatos.end() ? -1 : static_cast<int>(lugar - candidatos.begin());
    const bool de_onde_estava = e.foco_visivel && e.foco_x >= 0; // o controle em foco pode ter saído da tela
    const Ponto de = agora >= 0 ? pontos[static_cast<std::size_t>(agora)] : Ponto{e.foco_x, e.foco_y};
    int novo = -1;
    if (!e.foco_visivel && agora >= 0)
        novo = agora; // a primeira tecla só mostra onde o foco está
    else if (t.codigo != SDLK_TAB && (agora >= 0 || de_onde_estava))
        novo = mais_perto(pontos, de, direcao(t.codigo));
    if (novo < 0 && (t.codigo == SDLK_TAB || agora < 0))
        novo = vizinho(agora, static_cast<int>(candidatos.size()), t.maiuscula);
    if (novo >= 0) {
        poe_foco(candidatos[static_cast<std::size_t>(novo)]);
        e.foco_x = pontos[static_cast<std::size_t>(novo)].x;
        e.foco_y = pontos[static_cast<std::size_t>(novo)].y;
    }
    mostra_foco();
}

// Onde um arraste pode cair, em pontos da janela: cada controle que o recebe, cada casa dos que têm grade, e o
// fundo.
std::vector<Ponto> alvos_do_arraste() {
    std::vector<Ponto> alvos;
    Tela& tela = *tela_ativa();
    for (Controle* c : tela.controles) {
        if (!c->solta || !c->ativo || !c->a_vista() || c == e.arrastado) continue;
        if (c->grade.colunas == 0) {
            const Ponto p = meio_de(*c, c->realce());
            // As duas metades de um lugar são um alvo só.
            if (std::none_of(alvos.begin(), alvos.end(), [p](Ponto a) { return std::hypot(a.x - p.x, a.y - p.y) < 1; }))
                alvos.push_back(p);
            continue;
        }
        const Retangulo r = c->lugar();
        for (int i = 0; i < c->grade.linhas * c->grade.colunas; ++i) {
            const int coluna = i % c->grade.colunas, linha = i / c->grade.colunas;
            const Ponto casa{tela.origem_x() + r.x + (coluna + 0.5) * c->grade.passo_x,
                             tela.origem_y() + r.y + (linha + 0.5) * c->grade.passo_y};
            if (controle_em(casa.x, casa.y) == c) alvos.push_back(casa);
        }
    }
    if (tela.solta_no_fundo)
        for (int y = altura_logica - 6; y > 0; y -= 12)
            for (int x = 6; x < largura_logica; x += 12)
                if (controle_em(x, y) == nullptr) {
                    alvos.push_back({double(x), double(y)});
                    return alvos;
                }
    return alvos;
}

void leva_arraste(const Tecla& t) {
    const std::vector<Ponto> alvos = alvos_do_arraste();
    if (alvos.empty()) return;
    const auto aqui =
        std::find_if(alvos.begin(), alvos.end(), [](Ponto p) { return std::hypot(p.x - e.x, p.y - e.y) < 1; });
    const int agora = aqui == alvos.end() ? -1 : static_cast<int>(aqui - alvos.begin());
    const int novo = t.codigo == SDLK_TAB ? vizinho(agora, static_cast<int>(alvos.size()), t.maiuscula)
                                          : mais_perto(alvos, {e.x, e.y}, direcao(t.codigo));
    if (novo < 0) return;
    e.x = alvos[static_cast<std::size_t>(novo)].x;
    e.y = alvos[static_cast<std::size_t>(novo)].y;
    move_arraste();
}

void tecla_no_arraste(const Tecla& t) {
    if (t.codigo == SDLK_ESCAPE)
        desiste_do_arraste();
    else if (!e.pelo_teclado)
        return;
    else if (t.codigo == SDLK_TAB || e_seta(t.codigo))
        leva_arraste(t);
    else if (t.codigo == SDLK_RETURN || t.codigo == SDLK_KP_ENTER || t.codigo == SDLK_SPACE)
        larga_arraste();
}

void aciona_foco(Controle& c, bool enter) {
    if (c.arrasta && (enter || !c.clique)) {
        const Ponto p = meio(c);
        e.x = p.x;
        e.y = p.y;
        comeca_arraste(&c, true);
        return;
    }
    if (c.botao) c.botao({1, c.largura / 2, c.altura / 2});
    c.aciona();
}

// A letra sublinhada de um botão (a que vem depois de "&") o aciona.
bool aciona_atalho(Tela& tela, int codigo) {
    if (codigo < 'a' || codigo > 'z') return false;
    for (Controle* c : tela.controles) {
        const auto* b = dynamic_cast<Botao*>(c);
        if (b == nullptr || !c->interage()) continue;
        const std::size_t e_comercial = c->texto.find('&');
        if (e_comercial == std::string::npos || e_comercial + 1 >= c->texto.size()) continue;
        if ((c->texto[e_comercial + 1] | 0x20) != codigo) continue;
        c->aciona();
        return true;
    }
    return false;
}

} // namespace

void trata_tecla(const Tecla& t) {
    Tela* tela = tela_ativa();
    if (tela == nullptr) return;
    if (t.codigo == SDLK_F11) return hospedeiro->troca_tela_cheia();
    if (e.arrastado != nullptr) return tecla_no_arraste(t);
    Controle* foco = tela->foco != nullptr && tela->foco->interage() ? tela->foco : nullptr;
    if (foco != nullptr) {
        if (foco->tecla && foco->tecla(t)) return;
        if (foco->teclado(t)) return mostra_foco();
    }
    if (foco == nullptr && tela->padrao != nullptr && tela->padrao->interage()) foco = tela->padrao;
    const bool enter = t.codigo == SDLK_RETURN || t.codigo == SDLK_KP_ENTER;
    const bool quadro = tela->dialogo && tela->controles.empty(); // só se olha e se fecha
    const bool mais = t.codigo == SDLK_PLUS || t.codigo == SDLK_KP_PLUS || t.codigo == SDLK_EQUALS;
    const bool menos = t.codigo == SDLK_MINUS || t.codigo == SDLK_KP_MINUS;
    if (t.codigo == SDLK_TAB || e_seta(t.codigo))
        leva_foco(t);
    else if (tela->dialogo && (t.codigo == SDLK_ESCAPE || (quadro && (enter || t.codigo == SDLK_SPACE))))
        tela->pede_fechar();
    else if (t.codigo == SDLK_ESCAPE)
        tela->Form_Click(); // o mesmo que o mouse no fundo da tela
    else if (foco != nullptr && (enter || t.codigo == SDLK_SPACE))
        aciona_foco(*foco, enter);
    else if (foco != nullptr && foco->botao && (mais || menos))
        foco->botao({mais ? 1 : 2, foco->largura / 2, foco->altura / 2});
    else if (foco == nullptr || !foco->recebe_texto())
        aciona_atalho(*tela, t.codigo);
}

void pinta_foco(Pintor& p) {
    const Tela* t = tela_ativa();
    if (!e.foco_visivel || e.arrastado != nullptr || t == nullptr || t->foco == nullptr || !t->foco->interage()) return;
    p.anel(na_tela(*t->foco, t->foco->lugar()));
}

} // namespace verdalia
