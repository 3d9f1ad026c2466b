#include "flow/intronew.h"

#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/comum/saida.h"
#include "flow/comum/series.h"
#include "flow/regras/calendario.h"
#include "platform/base/caminhos.h"
#include "platform/tela/laco.h"

namespace verdalia {

namespace {

constexpr Lugar lugares[] = {
    {"saida", -1, 74, 14, 100, 120, "", "Sair do Programa"},
    {"pic_feira", -1, 84, 150, 80, 62, "", "Ir para a tela da Feira - Auto abastecimento"},
    {"pic_horta", -1, 84, 240, 80, 62, "", "Ir para a horta"},
    {"pic_semen", -1, 84, 330, 80, 62, "", "Ir para sementeira"},
    {"pic_agenda", -1, 84, 420, 80, 60, "", "Ir para a Agenda"},
    {"interroga", -1, 20, 530, 48, 48, "", "Help sobre o cultivo"},
    {"Label2", -1, 72, 542, 84, 26, "Opções", "Configurações de som, unidade do CD, help do software, jogo da memória"},
    {"Picture1", -1, 252, 14, 520, 500},
    {"pic_nhoca", -1, 680, 552, 60, 30},
    {"legenda", 0, 54, 211, 140, 26, "Feira"},
    {"legenda", 1, 54, 301, 140, 26, "Horta"},
    {"legenda", 2, 54, 391, 140, 26, "Sementeira"},
    {"legenda", 3, 54, 479, 140, 26, "Agenda"},
};

// As palavras quentes do guia: o título do quadro e a figura que ele mostra.
struct Pagina {
    const char* titulo;
    const char* figura;
};
constexpr Pagina paginas[] = {
    {"Vaso ou Canteiro", "\\anima\\help1b.jpg"},
    {"Requisitos", "\\anima\\help111.jpg"},
    {"Auto Abastecimento", "\\anima\\helpauto.jpg"},
    {"Escolher Verduras", "\\anima\\helpfeir.jpg"},
    {"Plantar as Verduras", "\\anima\\help4.jpg"},
    {"Sementeira", "\\anima\\help5.jpg"},
    {"Tempo Real", "\\anima\\help6.jpg"},
    {"Previsão", "\\anima\\help6.jpg"},
    {"Quais Atividades", "\\anima\\help7.jpg"},
    {"Confirmar", "\\anima\\help8.jpg"},
    {"Vaso ou Canteiro", "\\anima\\help9.jpg"},
    {"Help", "\\anima\\help10.jpg"},
    {"Pergunte que o Hortelão responde", "\\anima\\help101.jpg"},
};
constexpr int ultima_pagina = std::size(paginas) - 1;

enum : std::int16_t { acao_saida = 2, acao_horta = 17, acao_feira, acao_interroga };

constexpr Serie series[] = {
    {.acao = acao_saida, .controle = "saida", .antes = "\\anima\\port", .quadros = porta_abre_e_fecha},
    serie_agenda,
    serie_mudas,
    serie_enxada(acao_horta),
    {.acao = acao_feira,
     .controle = "pic_feira",
     .antes = "\\anima\\cesta",
     .algarismos = 1,
     .quadros = de_0_a_9,
     .fala = "\\vamfei.wav",
     .destino = TelaId::feira_horta},
    {.acao = acao_interroga, .controle = "interroga", .antes = "\\anima\\int", .quadros = de_5_a_0},
};

constexpr int intervalo_da_minhoca = 100;
constexpr double passo_da_minhoca = 50 * twip;
constexpr double minhoca_volta_em = 2400 * twip;
constexpr double minhoca_vai_em = 10200 * twip;

} // namespace

INTRONEW::INTRONEW() : Tela("INTRONEW"), animacao{*this, timer_, series, [this](int acao) { fim_da_animacao(acao); }} {}

void INTRONEW::cria_controles() {
    for (int i = 0; i <= ultima_pagina; ++i) {
        Rotulo& palavra = Label1.cria(i);
        palavra.quente = true;
        palavra.letra = {.familia = Familia::legenda, .corpo = 10.5, .negrito = true};
        palavra.texto = paginas[i].titulo;
        palavra.ponteiro = ponteiro_mao;
        palavra.clique = [this, i] { Label1_Click(i); };
        // As placas do guia: três por fileira, e a última embaixo, ao lado do hortelão.
        palavra.esquerda = i < ultima_pagina ? 270 + 166 * (i % 3) : 372;
        palavra.topo = i < ultima_pagina ? 130 + 97 * std::floor(i / 3) : 466;
        palavra.largura = i < ultima_pagina ? 152 : 376;
        palavra.altura = i < ultima_pagina ? 22 : 30;
    }
    for (int i = 0; i < 4; ++i) {
        legenda.cria(i).letra = {.familia = Familia::legenda, .corpo = 11, .negrito = true};
        legenda(i).atravessa = true;
    }
    arruma(*this, lugares);
    pic_nhoca.atravessa = true;
    Label2.quente = true;
    Label2.letra = {.familia = Familia::legenda, .corpo = 13, .negrito = true};

    saida.clique = [this] { clique_quente(acao_saida, nullptr); };
    pic_agenda.clique = [this] { clique_quente(serie_agenda.acao, nullptr); };
    pic_semen.clique = [this] { clique_quente(serie_mudas.acao, &pic_semen); };
    pic_horta.clique = [this] { clique_quente(acao_horta, nullptr); };
    pic_feira.clique = [this] { clique_quente(acao_feira, nullptr); };
    interroga.clique = [this] { clique_quente(acao_interroga, &interroga); };
    Label2.clique = [this] { Label2_Click(); };
    timer_.dispara = [this] { animacao.tique(); };
    Timer1.dispara = [this] { Timer1_Timer(); };
}

void INTRONEW::Form_Load() {
    cria_controles();
    nhoca_quadro = 0;
    nhoca_esquerda = true;
    nome_banco = "\\hortas00.mdb";
    tenta_no_banco("Atenção ...", "As figuras continuam a vir da mesma unidade.", le_cd);
    if (unidade_cd >= 0 && unidade_cd < static_cast<int>(letras_de_unidade.size()))
        dir_media = letras_de_unidade[static_cast<std::size_t>(unidade_cd)];
    saida.figura = carrega_figura(dir_media + "\\anima\\port00.bmp");
    pic_feira.figura = carrega_figura(dir_media + "\\anima\\cesta9.bmp");
    pic_agenda.figura = carrega_figura(dir_media + "\\anima\\age10.bmp");
    interroga.figura = carrega_figura(dir_media + "\\anima\\int00.bmp");
    pic_nhoca.figura = carrega_figura(dir_media + "\\anima\\nhoca0p.bmp");
    fundo = carrega_figura("\\back_in.jpg");
    Picture1.figura = carrega_figura("\\inintro1.jpg");
    silencia(sem_esperar);
    num_banco = 0;
    nome_banco = "\\hortas0" + std::to_string(num_banco) + ".mdb";
    if (primeira_carga && !tenta_no_banco("Atenção ...", "A horta guardada não foi tocada; o jogo vai fechar.",
                                          [this] { primeira_carga_da_partida(); }))
        return termina(true);
    carga_4_botões();
}

void INTRONEW::carga_4_botões() {
    pic_horta.ativo = pic_semen.ativo = true;
    pic_horta.figura = carrega_figura(dir_media + "\\anima\\enx00c.bmp");
    pic_semen.figura = carrega_figura(dir_media + "\\anima\\mudas007.bmp");
}

void INTRONEW::primeira_carga_da_partida() {
    area_maxima = 100;
    carrega_tabelas();
    horta_vazia = !le_canteiros();
    le_pedido();
    auto_abastecido = auto_abastecimento();
    mostra_avisos_do_banco();
    nova_semana();
    primeira_carga = false;
}

void INTRONEW::nova_semana() {
    const Dia guardada = le_data_semana();
    const Dia dia_de_hoje = hoje();
    if (dia_de_hoje <= guardada) return;
    const int semanas = semanas_ate(guardada, dia_de_hoje);
    if (semanas > 0 && !horta_vazia) mostra_quadro("Nova Semana", "\\anima\\novasema.jpg");
    for (int i = 0; i < semanas; ++i) passa_semana();
    data_por_gravar = !tenta_no_banco("Nova Semana", "A horta está em dia nesta partida, mas ainda não foi gravada.",
                                      [dia_de_hoje] { grava_semana(dia_de_hoje); });
}

void INTRONEW::Form_Activate() {
    Label2.ponteiro = interroga.ponteiro = ponteiro_mao;
    Timer1.intervalo = intervalo_da_minhoca;
}

void INTRONEW::clique_quente(std::int16_t acao, Controle* com_ampulheta) {
    if (com_ampulheta != nullptr) com_ampulheta->ponteiro = ponteiro_ampulheta;
    animacao.comeca(acao);
}

void INTRONEW::fim_da_animacao(int acao) {
    if (acao == acao_saida) return sai_do_jogo();
    silencia(sem_esperar);
    topico_help = tela_origem = "Orgânico";
    mostra(TelaId::help);
}

void INTRONEW::Label1_Click(int Index) {
    mostra_quadro(paginas[Index].titulo, paginas[Index].figura);
}

void INTRONEW::Label2_Click() {
    Timer1.intervalo = 0;
    Label2.ponteiro = ponteiro_ampulheta;
    mostra(TelaId::conf);
}

void INTRONEW::Timer1_Timer() {
    const bool anda = nhoca_quadro > 3;
    const int quadro = anda ? 6 - nhoca_quadro : nhoca_quadro;
    if (anda) pic_nhoca.esquerda += nhoca_esquerda ? -passo_da_minhoca : passo_da_minhoca;
    pic_nhoca.figura = carrega_figura(dir_media + (nhoca_esquerda ? "\\anima\\nhoca" : "\\anima\\nh") +
                                      std::to_string(quadro) + "p.bmp");
    if (nhoca_esquerda && pic_nhoca.esquerda < minhoca_volta_em)
        nhoca_esquerda = false;
    else if (!nhoca_esquerda && pic_nhoca.esquerda > minhoca_vai_em)
        nhoca_esquerda = true;
    nhoca_quadro = static_cast<std::int16_t>((nhoca_quadro + 1) % 7);
}

} // namespace verdalia
