#include "memory/mem_ok.h"

#include "memory/regras/ranking.h"

#include <algorithm>

namespace verdalia {

namespace {

constexpr Lugar lugares_do_nome[] = {
    {"Image1", -1, 18, 18, 120, 120},
    {"mensagem", 0, 154, 14, 372, 92, "  Você foi brilhante !  Acaba de entrar para o RANK dos 5 melhores. Yehh !"},
    {"mensagem", 1, 154, 112, 372, 28, "  Escreva seu nome"},
    {"Text1", -1, 154, 144, 368, 38},
    {"apaga", -1, 490, 149, 28, 28, "×", "Apagar o nome"},
    {"opções", -1, 412, 200, 110, 42, "OK"},
};

constexpr int letras_do_nome = 20;

bool comeca_letra(char c) {
    return (static_cast<unsigned char>(c) & 0xc0) != 0x80;
}

} // namespace

void mem_ok::Form_Load() {
    dialogo = true;
    titulo = "Ranking";
    largura = 540;
    altura = 258;
    cor_fundo = cor_papel_claro;
    mensagem.cria(0);
    mensagem.cria(1);
    arruma(*this, lugares_do_nome);
    Image1.figura = carrega_figura("\\recursos\\hortelao.bmp");
    for (int i = 0; i < 2; ++i) {
        mensagem(i).letra = {.corpo = 16};
        mensagem(i).alinha = Alinha::esquerda;
    }
    Text1.letra = {.corpo = 13};
    Text1.cor_fundo = {0xff, 0xff, 0xff};
    Text1.filtro = [this] { return Text1_KeyPress(); };
    Text1.enter = [this] {
        if (opções.ativo) opções_Click();
    };
    apaga.so_do_mouse = true;
    apaga.letra = {.corpo = 17, .negrito = true};
    apaga.clique = [this] { apaga_Click(); };
    opções.letra = {.corpo = 12, .negrito = true};
    opções.clique = [this] { opções_Click(); };
}

void mem_ok::Form_Activate() {
    apaga_Click();
}

void mem_ok::apaga_Click() {
    Text1.texto.clear();
    opções.ativo = false;
    foco = &Text1;
}

bool mem_ok::Text1_KeyPress() {
    opções.ativo = !Text1.texto.empty();
    return std::count_if(Text1.texto.begin(), Text1.texto.end(), comeca_letra) < letras_do_nome;
}

void mem_ok::opções_Click() {
    nome_jogador = Text1.texto;
    esconde(*this);
}

} // namespace verdalia
