// A sementeira: 22 leiras onde treze culturas são semeadas, por arraste, antes de ir para a horta. A tela diz o que
// semear nesta semana e que leiras pedem limpeza, desbaste ou transplante. Mostra o estado, não o guarda.
#pragma once
#include "flow/comum/tela_de_tratos.h"

namespace verdalia {

// Metade de uma leira: a muda, em cima, ou o seu crescimento. Uma semente cai na leira inteira.
struct MeiaLeira : Figura {
    using Figura::Figura;
    const MeiaLeira* outra = nullptr; // a outra metade
    bool pronta = false;              // na semana do transplante: contornada com a cor dele

    Retangulo realce() const override;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct controle_da_sementeira : TelaDeTratos {
    controle_da_sementeira();

    Figura pic_horta{*this, "pic_horta"};
    Rotulo lbl_verduras{*this, "lbl_verduras"};
    Matriz<Rotulo> Label1{*this, "Label1"};    // os números das colunas
    Matriz<Rotulo> Label2{*this, "Label2"};    // as letras dos blocos
    Matriz<MeiaLeira> CRESCE{*this, "CRESCE"}; // 0 a 21, como as outras por leira
    Matriz<MeiaLeira> Image3{*this, "Image3"};
    Matriz<Botao>& Command4 = botoes;
    Matriz<MarcaDeTrato>& Label4 = marcas;

    std::string modo_sem; // o trato cujas marcas estão nas leiras; "PLS" ou "": nenhum

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Click() override;
    bool Form_DragDrop(const Arraste& a) override; // tirar uma leira para fora a exclui
    void Form_DragOver() override { falou_nome = false; }

    // leiras.cpp: refazem leiras e botões pelas tabelas.
    void Monta_sem();  // a semana mudou, ou a apresentação acabou: todo trato volta a se acender
    void Monta_sem2(); // a tela abriu: o trato já feito fica com a cor, apagado
    // Marca as leiras que pedem o trato `modo` e diz se há alguma; "PLS" só apaga as marcas.
    bool leg_sem(const std::string& modo);
    // A figura do crescimento de uma leira, ou de `todas_as_leiras`.
    static constexpr int todas_as_leiras = 100;
    void CRESCER(int linha);

    // semeadura.cpp: o que falta semear de uma cultura, ou de todas (0 ou menos).
    void pl_sem(std::int16_t cultura);
    void Image3_DragDrop(int Index, const Arraste& a);

    void pic_horta_Click();
    void Label4_Click(int Index);
    std::int16_t piscadas_da_tela() const override { return 18; }
    bool mostra_marcas(const std::string& codigo) override;
    void marca_Click(int i) override { Label4_Click(i); }
    void mudou_semana(bool adiante) override;
    void acabou_passeio() override;
    void acabou_piscada() override;
    void rotulo_Click(const BotaoDeCultura& b) override; // Label3_Click
    void cultura_sobre(const BotaoDeCultura& b, const Arraste& a) override;
    std::string conselho(std::int16_t cultura) const override;

private:
    void cria_rotulos();
    void cria_leira(int r);
    void passa_pelas_leiras(bool olha_o_feito);
    void acende_horta(bool olha_o_feito);
    void poe_muda(int r, ImagemRef figura); // nula esvazia a leira
    void Des_Liga_sem(const BotaoDeCultura& b, bool falta);
    void ocupa_leira(const BotaoDeCultura& b, int Index);
};

} // namespace verdalia
