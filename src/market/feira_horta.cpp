#include "market/feira_horta.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/comum/saida.h"
#include "platform/base/relogio.h"
#include "platform/base/texto.h"
#include "platform/tela/laco.h"

#include <algorithm>
#include <cstdlib>
#include <random>

namespace verdalia {

namespace {

// Uma linha por verdura, na ordem dos caixotes e dos pregões: o número da linha é o índice em `plc`.
struct Verdura {
    std::int16_t cultura;
    int qt; // o índice da conta
    const char* clipe;
    const char* figura;
};
constexpr Verdura verduras[] = {
    {cult_couve, 10, "\\couv-vz.wav", "\\recursos\\feira_cou.bmp"},
    {cult_nabo, 13, "\\nab-vz.wav", "\\recursos\\feira_nab.bmp"},
    {cult_vagem, 20, "\\vag-vz.wav", "\\recursos\\feira_vgm.bmp"},
    {cult_chicoria, 9, "\\chic-vz.wav", "\\recursos\\feira_chi.bmp"},
    {cult_cheiro_verde, 8, "\\chei-vz.wav", "\\recursos\\feira_che.bmp"},
    {cult_pepino, 14, "\\pep-vz.wav", "\\recursos\\feira_pep.bmp"},
    {cult_brocolis, 6, "\\broc-vz.wav", "\\recursos\\feira_bro.bmp"},
    {cult_quiabo, 4, "\\quiab-vz.wav", "\\recursos\\feira_qui.bmp"},
    {cult_rabanete, 16, "\\rab-vz.wav", "\\recursos\\feira_rab.bmp"},
    {cult_rucula, 18, "\\ruc-vz.wav", "\\recursos\\feira_ruc.bmp"},
    {cult_berinjela, 3, "\\beri-vz.wav", "\\recursos\\feira_bgl.bmp"},
    {cult_espinafre, 12, "\\esp-vz.wav", "\\recursos\\feira_esp.bmp"},
    {cult_couve_flor, 11, "\\cflor-vz.wav", "\\recursos\\feira_flo.bmp"},
    {cult_repolho, 17, "\\rep-vz.wav", "\\recursos\\feira_rep.bmp"},
    {cult_alho_poro, 2, "\\alh-vz.wav", "\\recursos\\feira_por.bmp"},
    {cult_agriao, 0, "\\agri-vz.wav", "\\recursos\\feira_agr.bmp"},
    {cult_beterraba, 5, "\\bet-vz.wav", "\\recursos\\feira_bet.bmp"},
    {cult_alface, 1, "\\alf-vz.wav", "\\recursos\\feira_alf.bmp"},
    {cult_tomate, 19, "\\tom-vz.wav", "\\recursos\\feira_tom.bmp"},
    {cult_pimentao, 15, "\\pim-vz.wav", "\\recursos\\feira_pim.bmp"},
    {cult_cenoura, 7, "\\cen-vz.wav", "\\recursos\\feira_cen.bmp"},
};
constexpr int n_verduras = std::size(verduras);
static_assert(n_verduras == n_culturas);

// A barraca tem três prateleiras de sete caixotes; o que está dentro deles conta do canto de cada um.
constexpr int por_prateleira = 7;
constexpr Retangulo primeiro_caixote{21, 92, 86, 112};
constexpr double passo_x = 87, passo_y = 124;
constexpr Retangulo verdura_no_caixote{5, 5, 76, 78};
constexpr Retangulo nome_no_caixote{13, 89, 60, 21};
constexpr Retangulo conta_no_caixote{46, 3, 38, 24};
constexpr Retangulo menos_no_caixote{3, 3, 24, 24};

// O que se lê primeiro: a barraca, e depois o caminho da horta e a porta.
constexpr Retangulo partes[] = {{0, 0, 645, 475}, {0, 475, 645, 117}, {645, 0, 147, 592}};

Retangulo no_caixote(const Controle& caixote, const Retangulo& onde) {
    return {caixote.esquerda + onde.x, caixote.topo + onde.y, onde.largura, onde.altura};
}

constexpr Lugar lugares[] = {
    {"lbl_total", -1, 320, 486, 92, 58, "", "Esta é a área da sua horta"},
    {"Label4", -1, 320, 538, 92, 32, "leitos"},
    {"Label2", -1, 648, 418, 144, 144, "", "Ir para a horta"},
    {"Label3", -1, 656, 132, 130, 172, "", "Sair do jogo"},
};

constexpr int botao_direito = 2;
constexpr int demora_sem_musica = 5;
constexpr int demora_com_musica = 12000; // a trilha é ouvida primeiro
constexpr int intervalo_dos_pregoes = 2500;

} // namespace

void Caixote::pinta(Pintor& p, const Retangulo& r) {
    const Retangulo& v = verdura_no_caixote;
    if (figura) p.imagem(*figura, {r.x + v.x, r.y + v.y, v.largura, v.altura});
    const Retangulo& n = nome_no_caixote;
    p.texto_que_cabe(texto, {r.x + n.x, r.y + n.y, n.largura, n.altura}, letra);
    if (sob_o_mouse()) p.contorno(r, apertado() ? 4 : 2.5, cor_ouro);
}

void Conta::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, r.altura / 2, 1.5, cor_madeira_escura, cor_ouro);
    p.texto_que_cabe(texto, {r.x + 3, r.y - 2, r.largura - 6, r.altura}, letra);
}

void Menos::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, r.altura / 2, 1.5, cor_madeira_escura, sob_o_mouse() ? cor_ouro : cor_papel_claro);
    p.redondo({r.x + r.largura / 2 - 6, r.y + r.altura / 2 - 1.5, 12, 3}, 1.5, cor_tinta);
}

feira_horta::feira_horta() : Tela("feira_horta") {
    paineis.assign(std::begin(partes), std::end(partes));
}

void feira_horta::cria_controles() {
    for (int i = 0; i < n_verduras; ++i) {
        Caixote& caixote = plc.cria(i);
        const int coluna = i % por_prateleira, prateleira = i / por_prateleira;
        caixote.fica_em({primeiro_caixote.x + passo_x * coluna, primeiro_caixote.y + passo_y * prateleira,
                         primeiro_caixote.largura, primeiro_caixote.altura});
        caixote.figura = carrega_figura(verduras[i].figura);
        caixote.texto = nome_cult[verduras[i].cultura];
        caixote.letra = {.familia = Familia::legenda, .corpo = 10, .negrito = true};
        caixote.dica = caixote.texto + "\nO botão direito tira\nNo teclado: + põe, − tira";
        caixote.ponteiro = ponteiro_mao;
        caixote.cliques_rapidos = true;
        caixote.botao = [this, i](const Mouse& mouse) { plc_MouseUp(i, mouse.botao); };
    }
    for (int i = 0; i < n_verduras; ++i) {
        Rotulo& conta = qt.cria(verduras[i].qt);
        conta.fica_em(no_caixote(plc(i), conta_no_caixote));
        conta.letra = {.familia = Familia::legenda, .corpo = 12, .negrito = true};
        conta.atravessa = true;
        Rotulo& tira = menos.cria(i);
        tira.fica_em(no_caixote(plc(i), menos_no_caixote));
        tira.dica = "Tirar um de " + plc(i).texto;
        tira.ponteiro = ponteiro_mao;
        tira.so_do_mouse = tira.cliques_rapidos = true;
        tira.clique = [this, i] { plc_MouseUp(i, botao_direito); };
    }
    arruma(*this, lugares);
    lbl_total.letra = {.familia = Familia::legenda, .corpo = 27, .negrito = true};
    Label4.letra = {.familia = Familia::legenda, .corpo = 12, .negrito = true};
    for (Rotulo* quente : {&lbl_total, &Label2, &Label3}) quente->ponteiro = ponteiro_mao;
    lbl_total.clique = [this] { lbl_total_Click(); };
    Label2.clique = [this] { Label2_Click(); };
    Label3.clique = [this] { Label3_Click(); };
    Timer1.dispara = [this] { Timer1_Timer(); };
    Timer2.dispara = [this] { Timer2_Timer(); };
}

void feira_horta::Form_Load() {
    if (musica_ligada) efeito(trilha_feira, sem_esperar);
    cria_controles();
    int total = 0;
    for (int i = 0; i < n_verduras; ++i) {
        mostra_conta(i);
        total += seq_pedido[verduras[i].cultura] * area_unidade[verduras[i].cultura];
    }
    lbl_total.texto = total == 0 ? "" : std::to_string(total);
    fundo = carrega_figura("\\FEIRA98f.jpg");
}

void feira_horta::Form_Activate() {
    Timer2.intervalo = musica_ligada ? demora_com_musica : demora_sem_musica;
}

void feira_horta::mostra_conta(int Index) {
    const Verdura& v = verduras[Index];
    Rotulo& conta = qt(v.qt);
    conta.visivel = seq_pedido[v.cultura] * qtd_unidade[v.cultura] != 0;
    conta.texto = conta.visivel ? std::to_string(seq_pedido[v.cultura]) + " x" : "";
    menos(Index).visivel = conta.visivel;
}

void feira_horta::plc_MouseUp(int Index, int Button) {
    const std::int16_t c = verduras[Index].cultura;
    blip();
    const int novo = std::max(0, seq_pedido[c] + (Button == 1 ? 1 : -1));
    const int soma = std::atoi(lbl_total.texto.c_str()) + (novo - seq_pedido[c]) * area_unidade[c];
    if (soma > area_maxima) {
        avisa("Ops ...", "Sua horta pode ter no máximo " + texto_de_numero(area_maxima) + " m2.");
        return;
    }
    seq_pedido[c] = static_cast<std::int16_t>(novo);
    lbl_total.texto = std::to_string(soma);
    mostra_conta(Index);
}

void feira_horta::lbl_total_Click() {
    avisa("Quantidade de 'leitos de plantio'", "Essa é a quantidade de 'leitos de plantio' que voce precisará para "
                                               "poder produzir seu pedido semanalmente.");
    fala("\\ar1.wav", espera_o_fim);
}

void feira_horta::Form_Click() {
    silencia(espera_o_fim);
    Timer2_Timer();
}

void feira_horta::Timer2_Timer() {
    if (na_saida) return; // a demora recomeça: nada de pregões por cima das perguntas
    Timer1.intervalo = intervalo_dos_pregoes;
    Timer2.intervalo = 0;
}

void feira_horta::Timer1_Timer() {
    if (Timer1.intervalo > 0) grito();
}

void feira_horta::grito() {
    std::mt19937 sorteio(static_cast<std::uint32_t>(relogio->milissegundos()));
    const double fracao = sorteio() / (double{std::mt19937::max()} + 1);
    fala(verduras[static_cast<int>(n_verduras * fracao)].clipe, sem_esperar);
}

void feira_horta::Label2_Click() {
    Timer1.intervalo = 0;
    Label2.ponteiro = ponteiro_ampulheta;
    auto_abastecido = std::atoi(lbl_total.texto.c_str()) != 0;
    fala("\\vamhor.wav", espera_o_fim);
    descarrega(*this);
    mostra(TelaId::trabalhando_na_horta);
}

void feira_horta::Label3_Click() {
    const int intervalo = Timer1.intervalo;
    Timer1.intervalo = 0;
    sai_do_jogo();
    Timer1.intervalo = intervalo;
}

} // namespace verdalia
