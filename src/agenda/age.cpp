#include "agenda/age.h"

#include "agenda/regras/relatorio.h"
#include "agenda/tabelas.h"
#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "platform/tela/relatorio.h"

#include <algorithm>

namespace verdalia {

using namespace agenda_tabelas;

namespace {

static_assert(std::size(tabela_das_listas) == n_listas);

// Imprime o relatório da semana e, quando há canteiro vago, o da rotação; e diz onde ficaram.
void imprime_relatorios(const std::string& semana) {
    if (!pergunta("Impressão", "Deseja imprimir o relatório da semana " + semana + " ?")) return;
    const Dia dia = std::chrono::floor<std::chrono::days>(data_previsao);
    const Relatorio relat{"\\relatb.rpt", "semana"}, regrot{"\\rrr.rpt", "rotacao"};
    std::string onde_ficou = relat.imprime(nome_banco, dia).frase;
    if (std::find(st_cod_cult.begin(), st_cod_cult.begin() + n_canteiros, cult_vago) !=
        st_cod_cult.begin() + n_canteiros)
        onde_ficou += "\n\nRotação: " + regrot.imprime(nome_banco, dia).frase;
    avisa("Impressão", onde_ficou);
}

} // namespace

void QuadroDeLista::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, 8, 1.2, cor_madeira_clara, cor_papel_claro);
    for (int i = 0; i <= linhas_a_vista; ++i)
        p.retangulo({r.x + 4, r.y + linhas_no_quadro + i * altura_da_linha, r.largura - 8, 0.7}, cor_papel_escuro);
}

ListaNaTela::ListaNaTela(Tela& tela, const ListaDaAgenda& tabela)
    : quadro(tela, "quadro", tabela.lista), trato(tela, tabela.figura), cultura(tela, tabela.cultura),
      aonde(tela, tabela.aonde), aonde_sem(tela, tabela.aonde_sem), barra(tela, tabela.barra) {
    quadro.barra = &barra;
}

age::age() : TelaDeTrabalho("age", series) {
    TelaDeTrabalho::paineis.assign(std::begin(agenda_tabelas::paineis), std::end(agenda_tabelas::paineis));
    animacao.fim = [this](int acao) { fim_da_animacao(acao); };
}

void age::cria_lista(const ListaDaAgenda& t) {
    ListaNaTela& l = *na_tela.emplace_back(std::make_unique<ListaNaTela>(*this, t));
    const double x = primeiro_quadro.x + t.coluna * passo_x, y = primeiro_quadro.y + t.fileira * passo_y;
    const auto no_quadro = [x, y](const Retangulo& r) { return Retangulo{x + r.x, y + r.y, r.largura, r.altura}; };
    l.quadro.fica_em(no_quadro({0, 0, primeiro_quadro.largura, primeiro_quadro.altura}));
    l.trato.fica_em(no_quadro(figura_no_quadro));
    l.trato.dica = t.dica;
    l.trato.clique = [this, &t] { trato_Click(t); };
    Rotulo& titulo = Label1.cria(t.Label1);
    titulo.fica_em(no_quadro(titulo_no_quadro));
    titulo.texto = t.titulo;
    liga_ajuda(titulo, "Agenda", 10);

    const auto poe_coluna = [&](Matriz<Rotulo>& coluna, double esquerda, double largura_dela, Alinha alinha) {
        if (coluna.nome.empty()) return;
        for (int i = 0; i < linhas_a_vista; ++i) {
            Rotulo& r = coluna.cria(i);
            r.fica_em(no_quadro({esquerda, linhas_no_quadro + i * altura_da_linha, largura_dela, altura_da_linha}));
            r.alinha = alinha;
            r.atravessa = true;
            r.letra = {.corpo = 9};
        }
    };
    poe_coluna(l.cultura, x_da_cultura, x_do_lugar - x_da_cultura, Alinha::esquerda);
    poe_coluna(l.aonde, x_do_lugar, largura_do_lugar, Alinha::direita);
    poe_coluna(l.aonde_sem, x_da_leira, largura_do_lugar, Alinha::direita);
    l.barra.fica_em(no_quadro({x_da_barra, linhas_no_quadro, largura_da_barra, linhas_a_vista * altura_da_linha}));
    l.barra.pagina = linhas_a_vista;
    l.barra.muda = [this, &l, lista = t.lista] { monta(lista, l.barra.valor); };

    const auto poe_marca = [&](Matriz<Figura>& marcas, int indice, double coluna, const char* figura,
                               const char* dica) {
        if (indice < 0) return;
        Figura& f = marcas.cria(indice);
        f.fica_em(
            no_quadro({coluna + largura_do_lugar - lado_da_marca, marcas_no_quadro, lado_da_marca, lado_da_marca}));
        f.figura = carrega_figura(figura);
        f.dica = dica;
    };
    poe_marca(canteiro, t.canteiro, x_do_lugar, "\\recursos\\marca_canteiro.bmp",
              "Esta atividade deve ser feita na horta");
    poe_marca(PLS3, t.PLS3, x_da_leira, "\\recursos\\marca_sementeira.bmp",
              "Esta atividade deve ser feita na sementeira");
}

void age::Form_Load() {
    for (const ListaDaAgenda& t : tabela_das_listas) cria_lista(t);
    prepara("Agenda", lugares);
    pic_semen.figura = carrega_figura(dir_media + "\\anima\\mudas007.bmp");
    pic_horta.figura = carrega_figura(dir_media + "\\anima\\enx00c.bmp");
    pic_imp.figura = carrega_figura(dir_media + "\\anima\\imp06.bmp");
    pic_semen.clique = [this] { pic_semen_Click(); };
    pic_horta.clique = [this] { pic_horta_Click(); };
    pic_imp.clique = [this] { pic_imp_Click(); };
    fundo = carrega_figura("\\back_ag1.jpg");
    pict_inicial();
    refaz_listas();
    mostra_semanas();
    ponteiro = ponteiro_cruz;
}

// A cada vez que a agenda volta a mandar, também depois de um diálogo.
void age::Form_Activate() {
    comeca_passeio(trilha_age);
}

void age::pict_inicial() {
    for (const ListaDaAgenda& t : tabela_das_listas)
        troca_figura(na_tela[t.lista]->trato.figura, dir_media + t.repouso);
}

void age::final_animation() {
    TelaDeTrabalho::final_animation();
    pict_inicial();
}

void age::refaz_listas() {
    monta_listas();
    for (int l = 0; l < n_listas; ++l) {
        BarraRolagem& barra = na_tela[static_cast<std::size_t>(l)]->barra;
        barra.maximo = maximo_da_barra(static_cast<Lista>(l));
        barra.valor = 0;
        monta(static_cast<Lista>(l), 0);
    }
    tenta_no_banco("Agenda", "A agenda na tela está certa, mas o relatório impresso não.", prepara_relat);
}

void age::monta(Lista lista, int inicio) {
    ListaNaTela& l = *na_tela[lista];
    l.barra.visivel = l.barra.ativo = l.barra.maximo > 0;
    for (int i = 0; i < linhas_a_vista; ++i) {
        const std::size_t n = static_cast<std::size_t>(inicio) + static_cast<std::size_t>(i);
        const LinhaDeTrabalho linha = n < listas[lista].size() ? listas[lista][n] : LinhaDeTrabalho{};
        l.cultura(i).texto = linha.cultura;
        // Na semeadura há uma coluna só de lugares, que é a da sementeira.
        if (l.aonde.existe(i)) l.aonde(i).texto = linha.aonde;
        if (l.aonde_sem.existe(i)) l.aonde_sem(i).texto = l.aonde.existe(i) ? linha.aonde_sem : linha.aonde;
    }
}

void age::trato_Click(const ListaDaAgenda& t) {
    final_animation();
    fala(na_tela[t.lista]->cultura(0).texto.empty() ? t.fala_nao_ha : t.fala_ha, sem_esperar);
    animacao.comeca(t.acao);
}

// Estes dois não acabam a apresentação: ela gasta os quadros do caminho, e a tela sai logo.
void age::pic_semen_Click() {
    animacao.comeca(serie_mudas.acao);
    pic_semen.ponteiro = ponteiro_ampulheta;
}

void age::pic_horta_Click() {
    animacao.comeca(acao_horta);
}

void age::pic_imp_Click() {
    final_animation();
    animacao.comeca(acao_imp);
}

void age::mudou_semana(bool) {
    refaz_listas();
}

void age::fim_da_animacao(int acao) {
    if (acao == acao_imp) imprime_relatorios(terra.texto);
}

} // namespace verdalia
