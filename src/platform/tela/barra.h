// Barra de rolagem, de pé quando é mais alta que larga. `valor` fica entre `minimo` e `maximo`.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct BarraRolagem : Controle {
    BarraRolagem(Tela& dona, std::string nome, int indice = -1);

    int minimo = 0, maximo = 0, valor = 0;
    int passo = 1;   // setas e roda
    int pagina = 10; // clique fora do cursor

    bool interage() const override { return ativo && a_vista() && maximo > minimo; }
    void aperta(double x, double y) override;
    void move(double x, double y) override;
    void aciona() override {}
    void roda(int passos) override { vai(valor - passos * passo); }
    bool teclado(const Tecla& t) override;
    void pinta(Pintor& p, const Retangulo& r) override;

private:
    bool de_pe() const { return altura >= largura; }
    double comprimento() const { return de_pe() ? altura : largura; }
    double tamanho_do_cursor() const;
    double inicio_do_cursor() const;
    void vai(int novo);
    double pegou_em_ = -1; // distância do início do cursor; negativa quando ele não foi pego
};

} // namespace verdalia
