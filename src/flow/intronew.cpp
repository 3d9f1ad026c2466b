#include "flow/intronew.h"

#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/comum/minhoca.h"
#include "flow/comum/saida.h"
#include "flow/comum/series.h"
#include "flow/comum/unidades.h"
#include "flow/regras/calendario.h"
#include "platform/tela/laco.h"

namespace verdalia {

namespace {

// clang-format off
constexpr Lugar lugares_da_abertura[] = {
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
    {"legenda", 4, 172, 100, 50, 26, "Sair"},
};

// O que se lê primeiro: os caminhos, o guia.
constexpr Retangulo partes_da_abertura[] = {{0, 0, 240, 592}, {240, 0, 552, 592}};

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

constexpr Serie series_da_abertura[] = {
    {.acao = acao_saida, .controle = "saida", .quadros = {"\\anima\\port", porta_abre_e_fecha}},
    serie_agenda,
    serie_mudas,
    serie_enxada(acao_horta),
    {.acao = acao_feira, .controle = "pic_feira", .quadros = {"\\anima\\cesta", de_0_a_9, 1}, .viagem = {"\\vamfei.wav", TelaId::feira_horta}},
    {.acao = acao_interroga, .controle = "interroga", .quadros = {"\\anima\\int", de_5_a_0}},
};
// clang-format on

constexpr int intervalo_da_minhoca = 100;

} // namespace

INTRONEW::INTRONEW()
    : Tela("INTRONEW"), animacao{*this, timer_, series_da_abertura, [this](int acao) { fim_da_animacao(acao); }} {
    paineis.assign(std::begin(partes_da_abertura), std::end(partes_da_abertura));
}

void INTRONEW::cria_guia() {
    for (int i = 0; i <= ultima_pagina; ++i) {
        // Três quadros por fileira, e o último embaixo, ao lado do hortelão.
        const bool ultimo = i == ultima_pagina;
        const int coluna = i % 3, fileira = i / 3;
        const double esquerda = 266 + 166 * coluna, topo = 62 + 97 * fileira;
        Figura& figura = quadro.cria(i);
        figura.fica_em(ultimo ? Retangulo{266, 452, 492, 56} : Retangulo{esquerda, topo, 160, 92});
        figura.so_do_mouse = true;
        Rotulo& palavra = Label1.cria(i);
        palavra.fica_em(ultimo ? Retangulo{372, 466, 376, 30} : Retangulo{esquerda + 4, topo + 68, 152, 22});
        palavra.quente = true;
        palavra.letra = {.familia = Familia::legenda, .corpo = 10.5, .negrito = true};
        palavra.texto = paginas[i].titulo;
        for (Controle* c : {static_cast<Controle*>(&figura), static_cast<Controle*>(&palavra)}) {
            c->ponteiro = ponteiro_mao;
            c->clique = [this, i] { Label1_Click(i); };
        }
    }
}

void INTRONEW::cria_controles() {
    cria_guia();
    for (int i = 0; i < 5; ++i) legenda.cria(i).letra = {.familia = Familia::legenda, .corpo = 11, .negrito = true};
    arruma(*this, lugares_da_abertura);
    pic_nhoca.atravessa = true;
    Label2.quente = true;
    Label2.letra = {.familia = Familia::legenda, .corpo = 13, .negrito = true};

    pic_feira.clique = [this] { pic_feira_Click(); };
    pic_horta.clique = [this] { pic_horta_Click(); };
    pic_semen.clique = [this] { pic_semen_Click(); };
    pic_agenda.clique = [this] { pic_agenda_Click(); };
    saida.clique = [this] { saida_Click(); };
    interroga.clique = [this] { interroga_Click(); };
    Label2.clique = [this] { Label2_Click(); };
    // A palavra embaixo de cada figura faz o mesmo que ela.
    Figura* const figuras[] = {&pic_feira, &pic_horta, &pic_semen, &pic_agenda, &saida};
    for (int i = 0; i < 5; ++i) {
        legenda(i).clique = figuras[i]->clique;
        legenda(i).dica = figuras[i]->dica;
        legenda(i).so_do_mouse = true;
        legenda(i).ponteiro = figuras[i]->ponteiro = ponteiro_mao;
    }
    timer_.dispara = [this] { Timer__Timer(); };
    Timer1.dispara = [this] { Timer1_Timer(); };
    Timer1.so_muda = &pic_nhoca;
}

void INTRONEW::Form_Load() {
    cria_controles();
    nhoca_quadro = 0;
    nhoca_esquerda = true;
    nome_banco = "\\hortas00.mdb";
    tenta_no_banco("Atenção ...", "As figuras continuam a vir da mesma unidade.", le_cd);
    usa_unidade(unidade_cd);
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
    const Dia dia_de_hoje = std::chrono::floor<std::chrono::days>(data_hoje); // ainda que já passe da meia-noite
    if (guardada > dia_de_hoje + std::chrono::days{7})
        avisa("Nova Semana", "O relógio do computador diz que hoje é " + texto_do_dia(dia_de_hoje) +
                                 ", mas a horta já foi cuidada até " + texto_do_dia(guardada) +
                                 ". Enquanto essa data não chegar, a horta não cresce. Confira a data do computador.");
    if (dia_de_hoje <= guardada) return;
    const int semanas = semanas_ate(guardada, dia_de_hoje);
    if (semanas > 0 && !horta_vazia) mostra_quadro("Nova Semana", "\\anima\\novasema.jpg");
    for (int i = 0; i < semanas; ++i) passa_semana();
    data_por_gravar = !tenta_no_banco("Nova Semana", "A horta está em dia nesta partida, mas ainda não foi gravada.",
                                      [dia_de_hoje] { grava_semana(dia_de_hoje); });
    if (!data_por_gravar) guarda_copia();
}

void INTRONEW::Form_Activate() {
    Label2.ponteiro = interroga.ponteiro = ponteiro_mao;
    Timer1.intervalo = intervalo_da_minhoca;
}

void INTRONEW::pede_fechar() {
    animacao.para(); // a pergunta da saída toma o lugar do caminho já começado
    Tela::pede_fechar();
}

void INTRONEW::saida_Click() {
    animacao.comeca(acao_saida);
}

void INTRONEW::pic_feira_Click() {
    animacao.comeca(acao_feira);
}

void INTRONEW::pic_horta_Click() {
    animacao.comeca(acao_horta);
}

void INTRONEW::pic_semen_Click() {
    animacao.comeca(serie_mudas.acao);
    pic_semen.ponteiro = ponteiro_ampulheta;
}

void INTRONEW::pic_agenda_Click() {
    animacao.comeca(serie_agenda.acao);
}

void INTRONEW::interroga_Click() {
    animacao.comeca(acao_interroga);
    interroga.ponteiro = ponteiro_ampulheta;
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
    passo_da_minhoca(pic_nhoca, nhoca_quadro, nhoca_esquerda);
}

} // namespace verdalia
