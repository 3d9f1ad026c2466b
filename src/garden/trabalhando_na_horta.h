// A horta da família vista de cima: um tabuleiro de 10 por 10 canteiros, onde se planta arrastando, se fazem os
// tratos da semana e se olha o que vem pela frente. O tabuleiro mostra o estado, não o guarda.
#pragma once
#include "flow/comum/tela_de_tratos.h"

namespace verdalia {

struct trabalhando_na_horta : TelaDeTratos {
    trabalhando_na_horta();

    Figura horta{*this, "horta"};
    Figura pic_semen{*this, "pic_semen"};
    Matriz<Rotulo> lbl_verduras{*this, "lbl_verduras"};
    Matriz<Rotulo> Label1{*this, "Label1"}; // os números das colunas
    Matriz<Rotulo> Label2{*this, "Label2"}; // as letras das fileiras
    Matriz<Figura> cant{*this, "cant"};
    Matriz<Botao>& Command2 = botoes;
    Matriz<MarcaDeTrato>& txt_label = marcas;

    // O `modo` e o trato da última `mostra_legenda`: um canteiro plantado depois toma deles as cores.
    std::int16_t leg_modo = 0;
    std::string leg_op;
    bool achou_canteiro = false;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Click() override;
    bool Form_DragDrop(const Arraste& a) override; // tirar um canteiro para fora exclui a cultura

    // tabuleiro.cpp: `modo` 1 durante a chamada do trato `op`; senão 0 e "".
    void cria_cants();
    void cria_canteiro(int i);
    void destroi_canteiro(int i);
    void paint_modulo(int i);
    void monta_matriz(std::int16_t modo, const std::string& op);  // a semana mudou
    void monta_matriz2(std::int16_t modo, const std::string& op); // a tela abriu
    void monta_matriz3(std::int16_t modo, const std::string& op); // um trato foi chamado
    void mostra_legenda(std::int16_t modo, const std::string& op, int i, bool recalcula, std::string oper);
    void btn_sem_horta();

    // plantio.cpp
    void horta_DragDrop(const Arraste& a);
    void cant_DragDrop(const Arraste& a);
    void arrastar_soltar_horta(std::int16_t cod_cult, int i);

    // A legenda: quanto falta plantar de uma cultura, de todas (`cult_vago`) ou de nenhuma (`cult_nenhuma`).
    void pl_tr(std::int16_t cod_cult);

    void pic_semen_Click() { parte(pic_semen, serie_mudas.acao); }
    void txt_label_Click(int i);
    std::int16_t piscadas_da_tela() const override { return 19; }
    bool mostra_marcas(const std::string& codigo) override;
    void marca_Click(int i) override { txt_label_Click(i); }
    void mudou_semana(bool adiante) override;
    void acabou_passeio() override { poe_faces(); }
    void acabou_piscada() override;
    void rotulo_Click(const BotaoDeCultura& b) override;
    void cultura_sobre(const BotaoDeCultura& b, const Arraste& a) override;
    std::string conselho(std::int16_t cultura) const override;

private:
    void cria_rotulos();
    void passa_pelos_canteiros(std::int16_t modo, const std::string& op, bool olha_o_feito);
    bool legenda_pede_semente();
};

} // namespace verdalia
