#include "platform/tela/laco.h"

#include "platform/base/relogio.h"
#include "platform/tela/laco_interno.h"

#include <algorithm>
#include <cmath>

namespace verdalia {

Hospedeiro* hospedeiro = nullptr;
bool na_saida = false;
EstadoDoLaco estado_do_laco;

namespace {

constexpr std::int64_t demora_da_dica = 600;
constexpr std::int64_t demora_do_duplo = 400; // entre os dois apertos de um clique duplo
constexpr double folga_do_clique = 4;         // pixels lógicos que o mouse anda antes de um aperto virar arraste

std::string texto_da_dica(const Controle* c) {
    if (c == nullptr || e.arrastado != nullptr) return "";
    if (!c->dica_viva) return c->dica;
    const Retangulo r = c->lugar();
    return c->dica_viva(e.x - c->dona.origem_x() - r.x, e.y - c->dona.origem_y() - r.y);
}

// O ponteiro do controle vale sobre o da tela.
void acerta_ponteiro() {
    const Tela* t = tela_ativa();
    int numero = t != nullptr ? t->ponteiro : ponteiro_normal;
    if (e.sob != nullptr && e.sob->ponteiro != ponteiro_normal) numero = e.sob->ponteiro;
    hospedeiro->mostra_ponteiro(numero);
}

void acha_sob() {
    Controle* novo = controle_em(e.x, e.y);
    if (novo == e.sob) return;
    e.sob = novo;
    e.sujo = true;
    if (!e.dica_do_teclado) apaga_dica(); // a do que chegou sob o mouse parado só vem quando ele andar
}

bool longe_do_aperto() {
    return std::hypot(e.x - e.apertou_x, e.y - e.apertou_y) > folga_do_clique;
}

void trata_move() {
    if (e.arrastado != nullptr) {
        move_arraste();
    } else if (e.apertado != nullptr && e.apertado->arrasta && e.botao == 1 && longe_do_aperto()) {
        // O arraste parte de onde o botão foi apertado: quem fala ao ser pego é o próprio controle.
        const double x = e.x, y = e.y;
        e.x = e.apertou_x;
        e.y = e.apertou_y;
        comeca_arraste(e.apertado, false);
        e.x = x;
        e.y = y;
        move_arraste();
    } else if (e.apertado != nullptr && e.botao == 1) {
        e.apertado->move(e.x - e.apertado->dona.origem_x(), e.y - e.apertado->dona.origem_y());
    }
    acha_sob();
    arma_dica(e.sob, false);
}

// O segundo aperto de um clique duplo, no mesmo controle ou no mesmo ponto de uma tela que acabou de mudar.
bool segundo_aperto(const Evento& ev) {
    const bool mesmo = (e.sob != nullptr && e.sob == e.apertado_antes) || !longe_do_aperto();
    const bool segundo = mesmo && ev.botao == e.botao_de_antes && ev.quando - e.apertou_em < demora_do_duplo &&
                         (e.sob == nullptr || !e.sob->cliques_rapidos);
    e.apertado_antes = e.sob;
    e.botao_de_antes = segundo ? 0 : ev.botao; // um terceiro já é outro clique
    e.apertou_em = ev.quando;
    return segundo;
}

void trata_aperto(const Evento& ev) {
    Tela* t = tela_ativa();
    if (t == nullptr || e.arrastado != nullptr) return;
    e.foco_visivel = false;
    acha_sob();
    e.hora_da_dica = -1;
    e.dica_a_vista = false;
    e.sem_clique = segundo_aperto(ev);
    e.botao = ev.botao;
    e.apertou_x = e.x;
    e.apertou_y = e.y;
    if (e.sob != nullptr && !e.sob->ativo) return;
    e.apertado = e.sob;
    poe_foco(e.sob != nullptr && e.sob->interage() ? e.sob : t->padrao);
    if (e.apertado != nullptr && ev.botao == 1 && !e.sem_clique)
        e.apertado->aperta(e.x - t->origem_x(), e.y - t->origem_y());
}

void trata_soltura(int botao) {
    if (e.arrastado != nullptr) { // que só o botão esquerdo começa
        if (botao == 1) larga_arraste();
        return;
    }
    Tela* t = tela_ativa();
    if (t == nullptr || botao != e.botao) return;
    Controle* c = e.apertado;
    e.botao = 0;
    e.apertado = nullptr;
    if (e.sem_clique) return;
    if (c != nullptr) {
        const Retangulo r = c->lugar();
        const Mouse mouse{botao, e.x - t->origem_x() - r.x, e.y - t->origem_y() - r.y};
        if (c->botao) c->botao(mouse);
        // O evento pode ter tirado o controle da tela: só se clica no que continua debaixo do mouse.
        if (botao == 1 && controle_em(e.x, e.y) == c && c->ativo) c->aciona();
    } else if (t->dialogo && t->fechavel && t->caixa_de_fechar().contem(e.x, e.y)) {
        t->pede_fechar();
    } else if (controle_em(e.x, e.y) == nullptr && botao == 1 && (!t->dialogo || t->miolo().contem(e.x, e.y))) {
        t->Form_Click();
    }
}

void trata(const Evento& ev) {
    SDL_Surface* superficie = hospedeiro->superficie();
    const bool do_mouse = ev.tipo == Evento::move || ev.tipo == Evento::aperta || ev.tipo == Evento::solta;
    if (do_mouse && superficie != nullptr) {
        const Pintor p(superficie);
        e.x = p.logico_x(ev.x);
        e.y = p.logico_y(ev.y);
    }
    Tela* t = tela_ativa();
    switch (ev.tipo) {
    case Evento::move:
        trata_move();
        break;
    case Evento::aperta:
        trata_aperto(ev);
        break;
    case Evento::solta:
        trata_soltura(ev.botao);
        break;
    case Evento::roda:
        if (e.sob != nullptr && e.sob->ativo) e.sob->roda(ev.botao);
        break;
    case Evento::tecla:
        trata_tecla(ev.tecla_apertada);
        break;
    case Evento::texto:
        if (t != nullptr && t->foco != nullptr && t->foco->ativo) t->foco->escreve(ev.escrito);
        break;
    case Evento::janela:
        break;
    case Evento::fecha:
        e.fecha_pedido = true;
        break;
    case Evento::encerra:
        encerra();
        break;
    case Evento::guarda:
        guarda_o_jogo();
        break;
    }
    // Um som esperado pelo tratador já pintou a tela, antes do que ele mudou depois.
    if (ev.tipo != Evento::move) e.sujo = true;
}

// Os temporizadores que andam: os da tela inteira de cima e os dos diálogos sobre ela.
std::vector<Temporizador*> vivos() {
    std::vector<Temporizador*> lista;
    const int base = base_da_pilha();
    for (std::size_t i = base < 0 ? 0 : static_cast<std::size_t>(base); i < e.pilha.size(); ++i)
        if (e.pilha[i].a_vista)
            for (Temporizador* t : e.pilha[i].tela->temporizadores) lista.push_back(t);
    return lista;
}

// Dispara o temporizador mais atrasado, se há algum vencido.
bool dispara_um() {
    const std::int64_t agora = relogio->milissegundos();
    Temporizador* vencido = nullptr;
    for (Temporizador* t : vivos()) {
        if (t->intervalo != t->intervalo_visto) {
            t->intervalo_visto = t->intervalo;
            t->proximo = agora + t->intervalo;
        }
        if (t->intervalo > 0 && !t->disparando && t->proximo <= agora && (!vencido || t->proximo < vencido->proximo))
            vencido = t;
    }
    if (vencido == nullptr) return false;
    // Quem perdeu a hora por mais de um intervalo não a recupera em rajada.
    vencido->proximo += vencido->intervalo;
    if (vencido->proximo <= agora) vencido->proximo = agora + vencido->intervalo;
    const Controle* muda = vencido->so_muda;
    if (muda != nullptr) suja(*muda);
    vencido->disparando = true;
    if (vencido->dispara) vencido->dispara();
    vencido->disparando = false;
    if (muda != nullptr)
        suja(*muda);
    else
        e.sujo = true;
    return true;
}

std::int64_t ate_o_proximo() {
    const std::int64_t agora = relogio->milissegundos();
    std::int64_t falta = -1;
    const auto conta = [&falta, agora](std::int64_t hora) {
        const std::int64_t ms = std::max<std::int64_t>(0, hora - agora);
        if (falta < 0 || ms < falta) falta = ms;
    };
    for (const Temporizador* t : vivos())
        if (t->intervalo > 0 && !t->disparando)
            conta(t->intervalo == t->intervalo_visto ? t->proximo : agora + t->intervalo);
    if (e.hora_da_dica >= 0) conta(e.hora_da_dica);
    if (voando()) conta(agora + 16);
    return falta;
}

void mostra_dica_na_hora() {
    if (e.hora_da_dica < 0 || relogio->milissegundos() < e.hora_da_dica) return;
    e.hora_da_dica = -1;
    e.dica_a_vista = true;
    e.sujo = true;
}

// O que saiu de cena só se destrói quando nenhum evento o pode estar usando.
void esvazia_descartados() {
    if (e.nivel > 1) return;
    e.telas_descartadas.clear();
    for (Carregada& c : e.pilha) c.tela->descartados.clear();
}

bool recebe(Evento& ev) {
    if (!hospedeiro->proximo(ev)) return false;
    ev.quando = relogio->milissegundos();
    return true;
}

bool chegou(Evento& ev) {
    if (e.adiados.empty()) return recebe(ev);
    ev = e.adiados.front();
    e.adiados.pop_front();
    return true;
}

// Fechar a janela acaba sempre nas perguntas da saída: os diálogos abertos saem da frente sem resposta, um por um, e
// quem os abriu termina o que fazia.
void atende_o_fecho() {
    Tela* t = tela_ativa();
    if (t == nullptr) e.fim = true;
    if (t == nullptr || na_saida || !t->dialogo) e.fecha_pedido = false;
    if (t == nullptr || na_saida) return;
    t->pede_fechar();
    if (t == tela_ativa()) e.fecha_pedido = false; // este não se fecha
}

void gira(const std::function<bool()>& continua) {
    ++e.nivel;
    while (!e.fim && continua()) {
        Evento ev;
        bool fez = false;
        if (e.fecha_pedido) {
            atende_o_fecho();
            fez = e.sujo = true;
        } else if (chegou(ev)) {
            trata(ev);
            fez = true;
        } else if (dispara_um()) {
            fez = true;
        }
        esvazia_descartados();
        if (fez) {
            acha_sob();
            continue;
        }
        mostra_dica_na_hora();
        acerta_ponteiro();
        if (e.sujo || e.area_suja.largura > 0) {
            pinta_o_sujo();
            continue;
        }
        if (!hospedeiro->espera(ate_o_proximo())) e.fim = true;
        if (voando()) e.sujo = true;
    }
    --e.nivel;
}

} // namespace

int base_da_pilha() {
    for (int i = static_cast<int>(e.pilha.size()) - 1; i >= 0; --i)
        if (e.pilha[static_cast<std::size_t>(i)].a_vista && !e.pilha[static_cast<std::size_t>(i)].tela->dialogo)
            return i;
    return -1;
}

Controle* controle_em(double x, double y) {
    Tela* t = tela_ativa();
    if (t == nullptr) return nullptr;
    const double na_tela_x = x - t->origem_x(), na_tela_y = y - t->origem_y();
    if (t->foco != nullptr && t->foco->aberta().contem(na_tela_x, na_tela_y)) return t->foco;
    for (auto c = t->controles.rbegin(); c != t->controles.rend(); ++c)
        if ((*c)->a_vista() && !(*c)->atravessa && (*c)->lugar().contem(na_tela_x, na_tela_y)) return *c;
    return nullptr;
}

void arma_dica(const Controle* c, bool pelo_teclado) {
    std::string texto = texto_da_dica(c);
    if (c == e.dona_da_dica && texto == e.dica && e.arrastado == nullptr) return;
    if (e.dica_a_vista) e.sujo = true;
    e.dona_da_dica = c;
    e.dica_do_teclado = pelo_teclado;
    e.dica = std::move(texto);
    e.dica_a_vista = false;
    e.hora_da_dica = e.dica.empty() ? -1 : relogio->milissegundos() + demora_da_dica;
}

void apaga_dica() {
    if (e.dica_a_vista) e.sujo = true;
    e.dona_da_dica = nullptr;
    e.dica_do_teclado = e.dica_a_vista = false;
    e.hora_da_dica = -1;
}

void esquece_o_que_espera() {
    std::erase_if(e.adiados, [](const Evento& adiado) { return adiado.tipo < Evento::encerra; });
}

void esquece_controle(const Controle* c) {
    if (e.arrastado == c) e.arrastado = nullptr;
    if (e.dona_da_dica == c) apaga_dica();
    if (e.apertado_antes == c) e.apertado_antes = nullptr;
    if (c->dona.padrao == c) c->dona.padrao = nullptr;
    for (Controle** lembrado : {&e.sob, &e.apertado, &e.alvo, &c->dona.foco})
        if (*lembrado == c) *lembrado = nullptr;
}

void poe_foco(Controle* c) {
    Tela* t = tela_ativa();
    if (t == nullptr || t->foco == c) return;
    Controle* antes = t->foco;
    t->foco = c;
    if (antes != nullptr) {
        antes->fecha_aberta();
        if (antes->perde_foco) antes->perde_foco();
    }
}

void mostra_modal(TelaId id) {
    mostra(id);
    e.apertado = nullptr;
    e.botao = 0;
    esquece_o_que_espera();
    gira([id] {
        return std::any_of(e.pilha.begin(), e.pilha.end(),
                           [id](const Carregada& c) { return c.id == id && c.a_vista; });
    });
    if (Tela* t = tela_ativa(); t != nullptr && !e.fim) t->Form_Activate(); // volta a mandar quem estava por baixo
}

void laco() {
    gira([] { return tela_ativa() != nullptr; });
}

void termina(bool com_falha) {
    e.fim = true;
    e.com_falha = e.com_falha || com_falha;
}
bool terminando() {
    return e.fim;
}
bool querem_sair() {
    return e.fim || e.fecha_pedido;
}
bool terminou_com_falha() {
    return e.com_falha;
}

void espera_som(int ms) {
    const std::int64_t ate = relogio->milissegundos() + ms;
    acerta_ponteiro(); // a ampulheta de quem espera
    pinta_tudo();
    // O sistema manda acabar: quem fala termina o que fazia sem esperar por mais som nenhum, e só então se acaba.
    const auto tem_pressa = [] { return !e.adiados.empty() && e.adiados.front().tipo == Evento::encerra; };
    while (!e.fim && !tem_pressa()) {
        const std::int64_t falta = ate - relogio->milissegundos();
        if (falta <= 0) break;
        Evento ev;
        if (!recebe(ev)) {
            if (!hospedeiro->espera(falta)) e.fim = true;
        } else if (ev.tipo == Evento::janela) {
            pinta_tudo();
        } else if (ev.tipo == Evento::fecha) {
            e.fecha_pedido = true; // quem quer sair não espera pelo fim da fala
            break;
        } else if (ev.tipo == Evento::encerra) {
            e.adiados.push_front(ev);
        } else {
            e.adiados.push_back(ev); // um clique dado durante o som não se perde
        }
    }
}

void recomeca_laco() {
    descarrega_tudo();
    e = EstadoDoLaco{};
    na_saida = false;
}

} // namespace verdalia
