#include "flow/conf.h"

#include "data/banco.h"
#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/comum/series.h"
#include "flow/comum/unidades.h"
#include "memory/regras/ranking.h"
#include "platform/base/caminhos.h"

namespace verdalia {

namespace {

constexpr int musica = 1, voz = 2; // os índices de `Check1`
constexpr int correto = 1;         // o de `Option1` com que a tela começa

// Uma linha por sotaque, na ordem de `Option1`: a pasta das falas e as quatro trilhas.
struct Sotaque {
    const char* pasta;
    const char* horta;
    const char* age;
    const char* sem;
    const char* feira;
};
// clang-format off
constexpr Sotaque sotaques[] = {
    {"\\audio\\caipira", "\\hortafim.wav", "\\agendfim.wav", "\\semefim.wav", "\\feirafim.wav"},
    {"\\audio\\correto", "\\htfimc.wav", "\\agfimc.wav", "\\sefimc.wav", "\\fefimc.wav"},
    {"\\audio\\ingles", "\\htfimi.wav", "\\agfimi.wav", "\\seimi.wav", "\\fefimi.wav"},
};
constexpr int n_sotaques = std::size(sotaques);

constexpr Lugar lugares[] = {
    {"painel_sons", -1, 48, 60, 430, 366},
    {"painel_unidade", -1, 500, 60, 244, 150},
    {"painel_jogo", -1, 500, 230, 244, 196},
    {"Label3", 0, 60, 70, 406, 40, "Configuração de Sons"},
    {"Check1", 1, 78, 126, 300, 36},
    {"Label4", -1, 116, 126, 262, 36, "Trilha de Fundo"},
    {"Check1", 2, 78, 174, 300, 36},
    {"Label7", -1, 116, 174, 262, 36, "Voz do Hortelão"},
    {"Option1", 0, 114, 236, 220, 36},
    {"Label9", 0, 152, 236, 182, 36, "Locução Caipira"},
    {"Option1", 1, 114, 290, 220, 36},
    {"Label8", -1, 152, 290, 182, 36, "Portugues Correto"},
    {"Option1", 2, 114, 344, 220, 36},
    {"Label9", 1, 152, 344, 182, 36, "Locução Inglês"},
    {"enfeite", 0, 336, 244, 130, 130},
    {"Label5", -1, 514, 68, 216, 32, "Sua unidade de CD ?"},
    {"Combo1", -1, 562, 106, 120, 34},
    {"o_que_ha", -1, 514, 144, 216, 58},
    {"enfeite", 1, 514, 250, 84, 84},
    {"enfeite", 2, 580, 244, 84, 84},
    {"enfeite", 3, 646, 250, 84, 84},
    {"Labelgame", -1, 542, 356, 160, 50, "Jogo"},
    {"interroga", -1, 52, 458, 84, 84, "", "Help sobre o programa"},
    {"Label1", -1, 542, 474, 160, 52, "Retornar"},
};
// clang-format on

// O que se lê primeiro: os sons e o ponto de interrogação, depois a coluna da direita.
constexpr Retangulo partes[] = {{0, 0, 490, 592}, {490, 0, 302, 592}};

constexpr const char* enfeites[] = {"\\recursos\\hortelao.bmp", "\\anima\\5.jpg", "\\anima\\0.jpg", "\\anima\\17.jpg"};

constexpr std::int16_t acao_ajuda = 19;
constexpr Serie series[] = {
    {.acao = acao_ajuda, .controle = "interroga", .quadros = {"\\anima\\int", de_5_a_0}},
};

constexpr const char* titulo_dos_avisos = "Opções";

} // namespace

conf::conf() : Tela("conf"), animacao{*this, timer_, series, [this](int) { fim_da_animacao(); }} {
    paineis.assign(std::begin(partes), std::end(partes));
}

void conf::cria_controles() {
    for (int i = 0; i < static_cast<int>(std::size(enfeites)); ++i) {
        const std::string raiz = i == 0 ? "" : dir_media;
        enfeite.cria(i).figura = carrega_figura(raiz + enfeites[i]);
        enfeite(i).atravessa = true;
    }
    Label3.cria(0);
    Label9.cria(0);
    Label9.cria(1);
    for (const int i : {musica, voz}) Check1.cria(i).muda = [this, i] { Check1_MouseUp(i); };
    for (int i = 0; i < n_sotaques; ++i) Option1.cria(i).clique = [this] { Option1_Click(); };
    arruma(*this, lugares);

    Label3(0).letra = {.familia = Familia::legenda, .corpo = 19, .negrito = true};
    Label5.letra = {.familia = Familia::legenda, .corpo = 14, .negrito = true};
    o_que_ha.letra = {.familia = Familia::legenda, .corpo = 11};
    Combo1.letra.corpo = 14;
    // A legenda é da marca ao lado, que se clica nela também.
    for (Rotulo* legenda : {&Label4, &Label7, &Label8, &Label9(0), &Label9(1)}) {
        legenda->letra = {.familia = Familia::legenda, .corpo = 15};
        legenda->alinha = Alinha::esquerda;
        legenda->atravessa = true;
    }
    for (Botao* b : {&Label1, &Labelgame}) b->letra.corpo = 15;

    Combo1.muda = [this] { Combo1_Change(); };
    Combo1.perde_foco = [this] { Combo1_LostFocus(); };
    Label1.clique = [this] { Label1_Click(); };
    Labelgame.clique = [this] { Labelgame_Click(); };
    interroga.clique = [this] { interroga_Click(); };
    timer_.dispara = [this] { Timer__Timer(); };
}

void conf::Form_Load() {
    nome_banco = "\\hortas00.mdb";
    tenta_no_banco(titulo_dos_avisos, "Confira a unidade.", le_cd);
    usa_unidade(unidade_cd);
    dir_audio = dir_media + sotaques[correto].pasta;
    cria_controles();
    Combo1.itens.assign(letras_de_unidade.begin(), letras_de_unidade.end());
    Combo1.escolhido = unidade_cd;
    Combo1_Change();
    Option1(correto).marca();
    fundo = carrega_figura("\\back_ag1.jpg");
    interroga.figura = carrega_figura(dir_media + "\\anima\\int00.bmp");
}

void conf::Form_Activate() {
    Check1(musica).marcada = musica_ligada;
    Check1(voz).marcada = som_ligado;
    acende_sotaques();
    for (Controle* c :
         {static_cast<Controle*>(&interroga), static_cast<Controle*>(&Label1), static_cast<Controle*>(&Labelgame)})
        c->ponteiro = ponteiro_mao;
}

// Quem desiste de sair acha as marcas como as deixou.
void conf::pede_fechar() {
    animacao.para();
    const bool marcada = Check1(musica).marcada;
    Tela::pede_fechar();
    Check1(musica).marcada = marcada;
}

void conf::acende_sotaques() {
    for (int i = 0; i < n_sotaques; ++i) Option1(i).ativo = Check1(voz).marcada;
    for (Rotulo* legenda : {&Label8, &Label9(0), &Label9(1)}) legenda->ativo = Check1(voz).marcada;
}

int conf::sotaque_escolhido() const {
    for (const auto& [i, opcao] : Option1)
        if (opcao->marcada) return i;
    return n_sotaques - 1;
}

void conf::Check1_MouseUp(int Index) {
    if (Index != voz) return;
    som_ligado = Check1(voz).marcada;
    if (som_ligado) dir_audio = dir_media + sotaques[correto].pasta;
    acende_sotaques();
}

void conf::Option1_Click() {
    if (Check1(voz).marcada) dir_audio = dir_media + sotaques[sotaque_escolhido()].pasta;
}

void conf::Combo1_Change() {
    o_que_ha.texto = o_que_ha_na_unidade(Combo1.escolhido);
}

void conf::Combo1_LostFocus() {
    unidade_cd = static_cast<std::int16_t>(Combo1.escolhido);
    usa_unidade(unidade_cd);
}

void conf::Label1_Click() {
    // Um aviso pelo caminho traria as marcas de volta ao que vale até agora.
    const bool com_musica = Check1(musica).marcada, com_voz = Check1(voz).marcada;
    if (!unidade_serve(titulo_dos_avisos, Combo1.escolhido)) {
        Check1(musica).marcada = com_musica;
        return;
    }
    ponteiro = ponteiro_ampulheta;
    unidade_cd = static_cast<std::int16_t>(Combo1.escolhido);
    tenta_no_banco(titulo_dos_avisos, "Na próxima partida, a unidade será ainda a de antes.", grava_cd);
    musica_ligada = com_musica;
    som_ligado = com_voz;
    if (musica_ligada || som_ligado) {
        const Sotaque& sotaque = sotaques[sotaque_escolhido()];
        dir_audio = dir_media + sotaque.pasta;
        trilha_horta = sotaque.horta;
        trilha_age = sotaque.age;
        trilha_sem = sotaque.sem;
        trilha_feira = sotaque.feira;
    }
    usa_unidade(unidade_cd);
    descarrega(*this);
    mostra(TelaId::INTRONEW);
}

void conf::Labelgame_Click() {
    animacao.para();
    Labelgame.ponteiro = ponteiro_ampulheta;
    tipo_tempo = '1';
    tipo_cliques = '2';
    mostra(TelaId::gamedio);
}

void conf::interroga_Click() {
    animacao.comeca(acao_ajuda);
    interroga.ponteiro = ponteiro_ampulheta;
}

void conf::fim_da_animacao() {
    silencia(sem_esperar);
    topico_help = tela_origem = "PGM";
    mostra(TelaId::help);
}

} // namespace verdalia
