#include "memory/rank_form.h"

#include "flow/comum/dialogos.h"
#include "memory/regras/ranking.h"

#include <algorithm>

namespace verdalia {

namespace {

// As colunas, da esquerda para a direita; os cabeçalhos dos dois rankings.
struct Coluna {
    Matriz<Rotulo> rank_form::*rotulos;
    double esquerda, largura;
    Alinha alinha;
    const char* cabecalhos[2];
};
// clang-format off
constexpr Coluna colunas[] = {
    {&rank_form::posição, 76, 60, Alinha::centro, {"##", "##"}},
    {&rank_form::nome, 144, 386, Alinha::esquerda, {"JOGADOR", "JOGADOR"}},
    {&rank_form::valor, 532, 72, Alinha::direita, {"TEMPO", "CLIQUES"}},
    {&rank_form::quando, 612, 110, Alinha::direita, {"DIA", "DIA"}},
};
constexpr Lugar lugares_do_ranking[] = {
    {"painel", 0, 52, 104, 688, 186},
    {"painel", 1, 52, 302, 688, 186},
    {"nome", 12, 120, 50, 552, 46, "Os melhores do ranking"},
    {"enfeite", -1, 66, 496, 72, 72},
    {"Label1", 0, 400, 504, 150, 48, "Zerar"},
    {"Label1", 1, 580, 504, 150, 48, "Retornar"},
};
// clang-format on

constexpr int primeira_de_tempo = 0, primeira_de_cliques = 5, n_linhas = 10;
constexpr int cabecalho_de_tempo = 10, cabecalho_de_cliques = 11, titulo_da_tela = 12;
constexpr double altura_da_linha = 29;

enum { comando_zerar, comando_volta, n_comandos_do_ranking };

constexpr int intervalo_dos_nomes = 100;
constexpr int piscadas_dos_nomes = 12; // par: acabam à vista

// A linha do lugar `pos`, contada da primeira do seu ranking; o de um ranking vazio é o primeiro.
int linha_do_lugar(int pos) {
    return std::max(pos, 1) - 1;
}

} // namespace

rank_form::rank_form() : Tela("rank_form") {}

void rank_form::cria_tabela(int primeira, int cabecalho, double topo) {
    for (const Coluna& coluna : colunas) {
        Matriz<Rotulo>& rotulos = this->*coluna.rotulos;
        for (int i = -1; i < lugares_no_ranking; ++i) {
            Rotulo& r = rotulos.cria(i < 0 ? cabecalho : primeira + i);
            r.fica_em({coluna.esquerda, topo + altura_da_linha * (i + 1), coluna.largura, altura_da_linha});
            r.alinha = coluna.alinha;
            r.letra = {.familia = Familia::legenda, .corpo = i < 0 ? 12.0 : 14.0, .negrito = i < 0};
            if (i < 0) r.texto = coluna.cabecalhos[cabecalho - cabecalho_de_tempo];
        }
    }
    for (int i = 0; i < lugares_no_ranking; ++i) posição(primeira + i).texto = std::to_string(i + 1) + "º";
}

void rank_form::Form_Load() {
    painel.cria(0);
    painel.cria(1);
    nome.cria(titulo_da_tela).letra = {.familia = Familia::legenda, .corpo = 22, .negrito = true};
    for (int i = 0; i < n_comandos_do_ranking; ++i) {
        Label1.cria(i).letra.corpo = 14;
        Label1(i).ponteiro = ponteiro_mao;
        Label1(i).clique = [this, i] { Label1_Click(i); };
    }
    arruma(*this, lugares_do_ranking);
    cria_tabela(primeira_de_tempo, cabecalho_de_tempo, painel(0).topo + 6);
    cria_tabela(primeira_de_cliques, cabecalho_de_cliques, painel(1).topo + 6);
    enfeite.figura = carrega_figura("\\recursos\\hortelao.bmp");
    fundo = carrega_figura("\\back_ag1.jpg");
    Timer1.dispara = [this] { Timer1_Timer(); };
}

void rank_form::Mostra() {
    for (int i = 0; i < n_linhas; ++i) {
        for (Matriz<Rotulo>* coluna : {&nome, &valor, &quando}) (*coluna)(i).texto.clear();
        nome(i).visivel = true;
    }
    int l_tempo = primeira_de_tempo, l_cliques = primeira_de_cliques;
    for (const LinhaDoRanking& linha : Data1.linhas) {
        if (linha.peq_gra != tamanho_jogo) continue;
        const bool de_tempo = linha.tipo == tipo_tempo;
        int& l = de_tempo ? l_tempo : l_cliques;
        // Um arquivo mexido por fora pode ter linhas a mais.
        if (l >= (de_tempo ? primeira_de_cliques : n_linhas)) continue;
        nome(l).texto = linha.nome;
        valor(l).texto = de_tempo
                             ? linha.valor.substr(linha.valor.size() - std::min<std::size_t>(4, linha.valor.size()))
                             : std::to_string(numero_do_valor(linha.valor));
        quando(l).texto = linha.dta;
        ++l;
    }
    const bool ha_lugar_novo = std::min(pos_tempo, pos_cliques) <= lugares_no_ranking;
    piscadas = piscadas_dos_nomes;
    Timer1.intervalo = ha_lugar_novo ? intervalo_dos_nomes : 0;
}

void rank_form::Timer1_Timer() {
    const auto pisca = [this](int primeira, int pos) {
        if (pos > lugares_no_ranking) return;
        Rotulo& r = nome(primeira + linha_do_lugar(pos));
        r.visivel = !r.visivel;
    };
    pisca(primeira_de_cliques, pos_cliques);
    pisca(primeira_de_tempo, pos_tempo);
    if (--piscadas == 0) Timer1.intervalo = 0;
}

void rank_form::Label1_Click(int Index) {
    if (Index == comando_volta) return descarrega(*this);
    if (!pergunta("Atenção", "Deseja 'zerar' o ranking ?", {.perde_algo = true})) return;
    tenta_no_banco("Atenção", "O ranking continua como estava.", [this] {
        zera_ranking();
        pos_tempo = pos_cliques = sem_lugar;
        Mostra();
        Data1.Refresh();
    });
}

} // namespace verdalia
