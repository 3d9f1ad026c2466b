// A ajuda: o leitor dos documentos do jogo. `topico_help` diz qual se abre, `tela_origem` a que tela se volta.
#pragma once
#include "flow/comum/animacao.h"
#include "platform/tela/barra.h"
#include "platform/tela/figura.h"
#include "platform/tela/impressao.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

// A folha do texto; a roda do mouse sobre ela rola a barra.
struct FolhaDaAjuda : CaixaImpressao {
    using CaixaImpressao::CaixaImpressao;
    BarraRolagem* barra = nullptr;

    void roda(int passos) override;
};

// A faixa à esquerda do texto, onde fica a ilustração.
struct FaixaDaAjuda : Figura {
    using Figura::Figura;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct help : Tela {
    FaixaDaAjuda faixa{*this, "faixa"};
    FolhaDaAjuda TextPictureBox{*this, "TextPictureBox"};
    BarraRolagem TextVScroll{*this, "TextVScroll"};
    Matriz<Figura> ligacao{*this, "ligacao"}; // uma por zona, para o teclado; o mouse passa por elas
    Rotulo theLabel1{*this, "theLabel1"};
    Figura pic_nhoca{*this, "pic_nhoca"};
    Figura imagespicturebox{*this, "imagespicturebox"};
    Temporizador timer_{*this};
    Animacao animacao;

    std::int16_t anim_topico = 0; // a animação da ilustração; 0 quando não há
    bool nhoca_esquerda = true;
    std::int16_t nhoca_quadro = 0, nhoca_passos = 0;
    std::string o_que_falhou; // ao abrir o documento; diz-se quando a tela aparece

    help();
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Click() override; // Esc: fecha a figura aberta por uma ligação

    // Os textos são os bytes do documento.
    void mostra_topico(const std::string& topico);
    void abre_primeiro_topico();
    void segue_ligacao(const std::string& alvo);
    void ilustra_topico(const std::string& topico);

    void TextPictureBox_Paint();
    void TextVScroll_Change();
    // x e y na escala do motor.
    void TextPictureBox_MouseMove(int Button, int Shift, double X, double Y);
    void TextPictureBox_MouseDown(int Button, int Shift, double X, double Y);
    void imagespicturebox_Click();
    void pic_nhoca_Click();
    void thelabel1_Click();
    void Timer__Timer();

private:
    void abre_documento();
    void segue_arquivo(const std::string& alvo);
    void abre_figura(const std::string& caminho);
    void mostra_texto(bool mostra);
    void refaz_ligacoes();
};

} // namespace verdalia
