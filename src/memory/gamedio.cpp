#include "memory/gamedio.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "memory/regras/ranking.h"
#include "platform/base/relogio.h"
#include "platform/tela/laco.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace verdalia {

namespace {

constexpr int por_fileira = 6;
constexpr Retangulo primeira_carta{34, 44, 84, 84};
constexpr double passo = 87;

// clang-format off
constexpr Lugar lugares[] = {
    {"mesa", -1, 30, 40, 527, 527},
    {"painel", -1, 580, 52, 176, 236},
    {"legenda", 0, 592, 66, 152, 26, "TEMPO"},
    {"Lbl_timer", -1, 592, 92, 152, 56},
    {"legenda", 1, 592, 172, 152, 26, "CLIQUES"},
    {"lbl_contador", -1, 592, 198, 152, 56},
    {"Label1", 2, 592, 310, 152, 48, "Reiniciar"},
    {"Label1", 1, 592, 370, 152, 48, "Ranking"},
    {"Label1", 0, 592, 430, 152, 48, "Retornar"},
    {"enfeite", -1, 626, 484, 84, 84},
};
// clang-format on

// O que se lê primeiro: as cartas, e depois os comandos.
constexpr Retangulo partes[] = {{0, 0, 572, 592}, {572, 0, 220, 592}};

enum { comando_retornar, comando_ranking, comando_reiniciar, n_comandos };

constexpr int intervalo_do_pisca = 100;
constexpr int intervalo_do_relogio = 1000;
constexpr std::int16_t piscadas_do_par = 5;  // ímpar: o par acaba fora da mesa
constexpr std::int16_t piscadas_do_fim = 16; // par: tempo e tentativas acabam à vista

constexpr const char* som_da_carta = "\\quickly.wav";
constexpr const char* som_do_par = "\\oia.wav";

constexpr Cor cor_da_mesa{0xd9, 0xe8, 0xb4};
constexpr Cor cor_do_lugar{0xcb, 0xdd, 0xa0};

Retangulo lugar_da_carta(int Index) {
    return {primeira_carta.x + passo * (Index % por_fileira), primeira_carta.y + passo * (Index / por_fileira),
            primeira_carta.largura, primeira_carta.altura};
}

} // namespace

void Mesa::pinta(Pintor& p, const Retangulo& r) {
    Painel::pinta(p, r);
    for (int i = 0; i < n_cartas; ++i) p.redondo(lugar_da_carta(i), 8, cor_do_lugar);
}

void Carta::pinta(Pintor& p, const Retangulo& r) {
    Figura::pinta(p, r);
    if (virando)
        p.contorno({r.x - 2, r.y - 2, r.largura + 4, r.altura + 4}, 4, cor_ouro);
    else if (sob_o_mouse())
        p.contorno(r, apertado() ? 4 : 2.5, cor_ouro);
}

gamedio::gamedio() : Tela("gamedio") {
    paineis.assign(std::begin(partes), std::end(partes));
}

void gamedio::cria_controles() {
    for (int i = 0; i < n_cartas; ++i) {
        Carta& carta = figura.cria(i);
        carta.fica_em(lugar_da_carta(i));
        carta.ponteiro = ponteiro_mao;
        carta.clique = [this, i] { figura_Click(i); };
    }
    for (int i = 0; i < 2; ++i) legenda.cria(i).letra = {.familia = Familia::legenda, .corpo = 12, .negrito = true};
    for (int i = 0; i < n_comandos; ++i) {
        Label1.cria(i).letra.corpo = 14;
        Label1(i).clique = [this, i] { Label1_Click(i); };
    }
    arruma(*this, lugares);
    mesa.cor_fundo = cor_da_mesa;
    for (Rotulo* numero : {&Lbl_timer, &lbl_contador})
        numero->letra = {.familia = Familia::legenda, .corpo = 30, .negrito = true};
    enfeite.figura = carrega_figura("\\recursos\\hortelao.bmp");
    enfeite.atravessa = true;
    Timer1.dispara = [this] { Timer1_Timer(); };
    Timer2.dispara = [this] { Timer2_Timer(); };
    Timer3.dispara = [this] { Timer3_Timer(); };
}

void gamedio::Form_Load() {
    cria_controles();
    fundo = carrega_figura("\\back_ag1.jpg");
    tenta_no_banco("Ranking", "Pode-se jogar, mas o resultado não ficará guardado.", [] {
        Data1.linhas.clear();
        prepara_ranking();
        Data1.Refresh();
    });
    mostra_avisos_do_banco();
}

void gamedio::Form_Activate() {
    if (sem_jogo_novo) return;
    tamanho_jogo = 'F';
    iniciar();
    for (int i = 0; i < n_comandos; ++i) Label1(i).ponteiro = ponteiro_mao;
}

// Quem desiste de sair acha o jogo como o deixou.
void gamedio::pede_fechar() {
    const bool antes = std::exchange(sem_jogo_novo, true);
    Tela::pede_fechar();
    sem_jogo_novo = antes;
}

void gamedio::iniciar() {
    Timer1.intervalo = Timer2.intervalo = Timer3.intervalo = 0;
    lbl_contador.texto = '0';
    Lbl_timer.texto = ':';
    lbl_contador.visivel = Lbl_timer.visivel = true;
    pares = pares_restantes = n_pares;
    ponteiro = ponteiro_ampulheta;
    primeira = segunda = -1;
    valor_carta = baralha();
    for (int i = 0; i < n_cartas; ++i) {
        mostra_verso(i);
        figura(i).visivel = true;
    }
    efeito(som_da_carta, espera_o_fim);
    segundos = 0;
    ponteiro = ponteiro_seta;
}

void gamedio::mostra_carta(int Index) {
    troca_figura(figura(Index).figura, dir_media + "\\anima\\" + std::to_string(valor_carta[Index]) + ".jpg");
}

void gamedio::mostra_verso(int Index) {
    troca_figura(figura(Index).figura, dir_media + "\\anima\\0.jpg");
}

void gamedio::figura_Click(int Index) {
    if (Timer1.intervalo != 0) return; // um par está saindo
    if (Timer2.intervalo == 0) {
        Timer2.intervalo = intervalo_do_relogio;
        comecou_em = relogio->milissegundos();
    }
    figura(Index).virando = vira(Index);
    efeito(som_da_carta, espera_o_fim);
    figura(Index).virando = false;
}

bool gamedio::vira(int Index) {
    if (primeira >= 0 && segunda >= 0) { // a tentativa de antes falhou, ou o par dela já saiu
        for (const std::int16_t carta : {primeira, segunda})
            if (carta != Index) mostra_verso(carta);
        segunda = -1;
        primeira = static_cast<std::int16_t>(Index);
        mostra_carta(Index);
    } else if (primeira < 0) {
        primeira = static_cast<std::int16_t>(Index);
        mostra_carta(Index);
    } else if (Index != primeira) {
        segunda_carta(Index);
    } else {
        return false;
    }
    return true;
}

void gamedio::segunda_carta(int Index) {
    lbl_contador.texto = std::to_string(numero_do_valor(lbl_contador.texto) + 1);
    segunda = static_cast<std::int16_t>(Index);
    mostra_carta(Index);
    if (valor_carta[primeira] != valor_carta[segunda]) return;
    --pares_restantes;
    if (pares_restantes > 0) {
        piscadas = piscadas_do_par;
        Timer1.intervalo = intervalo_do_pisca;
        return;
    }
    figura(primeira).visivel = figura(segunda).visivel = false;
    piscadas = piscadas_do_fim;
    mostra_tempo();
    Timer2.intervalo = 0;
    Timer3.intervalo = intervalo_do_pisca;
}

void gamedio::Timer1_Timer() {
    --piscadas;
    for (const std::int16_t carta : {primeira, segunda}) figura(carta).visivel = !figura(carta).visivel;
    if (piscadas > 0) return;
    efeito(som_do_par, espera_o_fim);
    Timer1.intervalo = 0;
}

// O tempo vem do relógio: um som que se espera segura os temporizadores, e não o jogador.
void gamedio::mostra_tempo() {
    const std::int64_t passados = (relogio->milissegundos() - comecou_em) / 1000;
    segundos = static_cast<std::int16_t>(std::min<std::int64_t>(passados, std::numeric_limits<std::int16_t>::max()));
    if (segundos == 0) return;
    const std::string resto = std::to_string(segundos % 60);
    Lbl_timer.texto = std::to_string(segundos / 60) + ":" + (resto.size() < 2 ? "0" : "") + resto;
}

void gamedio::Timer3_Timer() {
    if (tela_ativa() != this) return; // com uma pergunta por cima, o fim espera
    --piscadas;
    for (Rotulo* numero : {&lbl_contador, &Lbl_timer}) numero->visivel = !numero->visivel;
    if (piscadas > 0) return;
    Timer3.intervalo = 0;
    pontua();
}

void gamedio::pontua() {
    ponteiro = ponteiro_ampulheta;
    // O resultado é o do jogo que acabou: a volta a esta tela já distribui as cartas de outro.
    const std::string tempo = Lbl_timer.texto, cliques = lbl_contador.texto;
    const bool entrou_tempo = bate_tempo(tempo), entrou_cliques = bate_cliques(cliques);
    if (entrou_tempo || entrou_cliques) {
        sem_jogo_novo = true;
        nome_jogador.clear();
        mostra_modal(TelaId::mem_ok);
        const bool guardado = tenta_no_banco("Ranking", "O resultado deste jogo não ficou guardado.", [&] {
            if (entrou_tempo) grava_tempo(tempo);
            if (entrou_cliques) grava_cliques(cliques);
        });
        if (!guardado) pos_tempo = pos_cliques = sem_lugar;
        sem_jogo_novo = false;
        mostra_modal(TelaId::rank_form);
    }
    ponteiro = ponteiro_seta;
}

void gamedio::Label1_Click(int Index) {
    if (Timer3.intervalo != 0) return; // o jogo acabou de acabar, e o resultado ainda não foi visto
    Label1(Index).ponteiro = ponteiro_ampulheta;
    Timer2.intervalo = Timer1.intervalo = 0;
    if (Index == comando_retornar) {
        descarrega(*this);
        mostra(TelaId::conf);
        return;
    }
    if (Index == comando_ranking) {
        pos_tempo = pos_cliques = sem_lugar;
        mostra_modal(TelaId::rank_form); // na volta, esta tela começa outro jogo
    } else {
        iniciar();
    }
    Label1(Index).ponteiro = ponteiro_mao;
}

} // namespace verdalia
