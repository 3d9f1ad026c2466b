// Lista suspensa: mostra o item escolhido; aberta, os itens aparecem por cima da tela.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct ListaSuspensa : Controle {
    ListaSuspensa(Tela& dona, std::string nome, int indice = -1);

    std::vector<std::string> itens;
    int escolhido = -1; // -1: nenhum
    bool esta_aberta = false;

    bool interage() const override { return ativo && a_vista(); }
    Retangulo aberta() const override;
    void aperta(double x, double y) override;
    void aciona() override {}
    void roda(int passo) override;
    bool teclado(const Tecla& t) override;
    void fecha_aberta() override { esta_aberta = false; }
    void pinta(Pintor& p, const Retangulo& r) override;
    void pinta_por_cima(Pintor& p) override;

private:
    void escolhe(int item);
};

} // namespace verdalia
