#include "flow/comum/dialogos.h"

#include "data/banco.h"
#include "data/estado.h"

#include <algorithm>
#include <utility>

namespace verdalia {

namespace {

constexpr double largura_do_dialogo = 540;
constexpr double margem = 18;
constexpr double lado_da_figura = 120;
constexpr double altura_do_botao = 42;
constexpr double largura_do_botao = 110;
constexpr double lado_da_ilustracao = 54;
constexpr Letra letra_da_mensagem{.corpo = 16};

// O que `ok` e `form_ok_nao` têm em comum: hortelão à esquerda, mensagem à direita, altura conforme o texto.
void veste(Tela& tela, Figura& hortelao, Rotulo& mensagem) {
    tela.dialogo = true;
    tela.largura = largura_do_dialogo;
    tela.cor_fundo = cor_papel_claro;
    hortelao.figura = carrega_figura("\\recursos\\hortelao.bmp");
    hortelao.fica_em({margem, margem, lado_da_figura, lado_da_figura});
    mensagem.letra = letra_da_mensagem;
    mensagem.alinha = Alinha::esquerda;
    mensagem.esquerda = 2 * margem + lado_da_figura;
    mensagem.topo = margem;
    mensagem.largura = largura_do_dialogo - mensagem.esquerda - margem;
}

// Dá à mensagem o texto da vez e põe os botões, da direita para a esquerda, embaixo dela.
void preenche(Tela& tela, Rotulo& mensagem, std::initializer_list<Botao*> da_direita, const std::string& titulo) {
    tela.titulo = titulo;
    mensagem.texto = msg_texto;
    const auto linhas = static_cast<double>(quebra_linhas(msg_texto, letra_da_mensagem, mensagem.largura).size());
    mensagem.altura = std::max(lado_da_figura - altura_do_botao / 2, linhas * altura_linha(letra_da_mensagem) + 4);
    const double topo = mensagem.topo + mensagem.altura + 10;
    tela.altura = topo + altura_do_botao + margem;
    double direita = largura_do_dialogo - margem;
    for (Botao* b : da_direita) {
        b->fica_em({direita - largura_do_botao, topo, largura_do_botao, altura_do_botao});
        b->letra.familia = letra_da_mensagem.familia; // um diálogo tem uma letra só
        direita = b->esquerda - margem;
    }
}

} // namespace

ok::ok() : Tela("ok") {
    fechavel = true;
}

void ok::Form_Load() {
    veste(*this, Image1, mensagem);
    opções.texto = "&OK";
    opções.clique = [this] { opções_Click(); };
}

void ok::opções_Click() {
    descarrega(*this);
}

form_ok_nao::form_ok_nao() : Tela("form_ok_nao") {}

void form_ok_nao::Form_Load() {
    veste(*this, Image1, mensagem);
    constexpr const char* textos[] = {"&Sim", "&Não"};
    for (int i = 0; i < 2; ++i) {
        opções.cria(i).texto = textos[i];
        opções(i).clique = [this, i] { opções_Click(i); };
        ilustracao.cria(i).atravessa = true;
    }
    legenda.atravessa = true;
    legenda.letra = {.corpo = 11, .negrito = true};
}

void form_ok_nao::opções_Click(int Index) {
    opções(Index).ponteiro = ponteiro_ampulheta;
    resposta_sim = Index == 0;
    opções(Index).ponteiro = ponteiro_normal;
    esconde(*this);
}

ok_help::ok_help() : Tela("ok_help") {
    dialogo = fechavel = true;
    largura = 640;
    altura = 440;
}

void avisa(const std::string& titulo, const std::string& mensagem) {
    msg_texto = mensagem;
    auto& d = carrega_como<ok>(TelaId::ok);
    preenche(d, d.mensagem, {&d.opções}, titulo);
    mostra_modal(TelaId::ok);
}

namespace {

// As figuras de que a pergunta fala, à esquerda dos botões, com a legenda ao lado.
void ilustra(form_ok_nao& d, const Questao& questao) {
    const double topo = d.opções(0).topo + (altura_do_botao - lado_da_ilustracao) / 2;
    double esquerda = margem;
    for (std::size_t i = 0; i < 2; ++i) {
        Figura& f = d.ilustracao(static_cast<int>(i));
        f.visivel = i < questao.ilustracao.size();
        f.figura = f.visivel ? carrega_figura(questao.ilustracao[i]) : nullptr;
        f.fica_em({esquerda, topo, lado_da_ilustracao, lado_da_ilustracao});
        esquerda += lado_da_ilustracao + 6;
    }
    d.legenda.texto = questao.legenda;
    d.legenda.fica_em({esquerda, topo, 110, lado_da_ilustracao});
}

} // namespace

bool pergunta(const std::string& titulo, const std::string& mensagem, const Questao& questao) {
    msg_texto = mensagem;
    resposta_sim = false; // o fim do jogo no meio da pergunta não vale por um sim
    auto& d = carrega_como<form_ok_nao>(TelaId::form_ok_nao);
    preenche(d, d.mensagem, {&d.opções(1), &d.opções(0)}, titulo);
    ilustra(d, questao);
    d.evita = questao.evita;
    d.foco = &d.opções(questao.perde_algo ? 1 : 0); // e não o da pergunta anterior
    mostra_modal(TelaId::form_ok_nao);
    return resposta_sim;
}

void mostra_quadro(const std::string& titulo, const std::string& figura) {
    auto& d = carrega_como<ok_help>(TelaId::ok_help);
    d.titulo = titulo;
    d.fundo = carrega_figura(dir_media + figura);
    mostra_modal(TelaId::ok_help);
}

bool tenta_no_banco(const std::string& titulo, const std::string& consolo, const std::function<void()>& faz) {
    try {
        faz();
        return true;
    } catch (const ErroBanco& erro) {
        avisa(titulo, std::string(erro.what()) + " " + consolo);
        return false;
    }
}

void mostra_avisos_do_banco() {
    for (const std::string& aviso : std::exchange(avisos_do_banco, {})) avisa("Atenção ...", aviso);
}

} // namespace verdalia
