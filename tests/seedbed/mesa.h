// A sementeira dos testes: abre a tela sobre as tabelas que o teste encheu e leva o mouse até as leiras.
#pragma once
#include "roteiro.h"

namespace verdalia {

struct Sementeira : PartidaNaTela {
    Sementeira() { prepara_banco(); }
    controle_da_sementeira& abre() { return entra_em<controle_da_sementeira>(TelaId::controle_da_sementeira); }
    // Arrasta um botão de cultura até a leira.
    Roteiro& semeia_com_mouse(const char* botao, int leira) {
        return roteiro.arrasta(botao, -1, 185.5 + leira % 11 * 44, leira < 11 ? 280 : 432);
    }
    Roteiro& leva_para_fora(int leira) { return roteiro.arrasta("Image3", leira, 420, 575); }
    // As colunas dos rótulos à vista: "0 6" quando faltam alface e tomate.
    static std::string faltam(controle_da_sementeira& s) {
        std::string lista;
        for (const auto& [k, rotulo] : s.Label3)
            if (rotulo->visivel) lista += (lista.empty() ? "" : " ") + std::to_string(k);
        return lista;
    }
    static auto destacados(controle_da_sementeira& s) {
        return std::count_if(s.c_.begin(), s.c_.end(), [](auto& f) { return nome(f->figura).starts_with("az_"); });
    }
    // A leira como o jogador a vê: a figura da muda e a do crescimento.
    static std::string leira(controle_da_sementeira& s, int r) {
        return nome(s.Image3(r).figura) + " " + nome(s.CRESCE(r).figura);
    }
    // As marcas das primeiras leiras: "_" escondida, "[ok]" feita, "[]" por fazer.
    static std::string marcas(controle_da_sementeira& s, int quantas) {
        std::string t;
        for (int r = 0; r < quantas; ++r) t += s.Label4(r).visivel ? "[" + s.Label4(r).texto + "]" : "_";
        return t;
    }
    // Os quatro botões: "A" aceso, "f" feito (com cor, apagado), "-" apagado.
    static std::string botoes(controle_da_sementeira& s) {
        std::string t;
        for (int i = 1; i <= 4; ++i) t += s.Command4(i).ativo ? 'A' : s.Command4(i).cor_fundo != cor_cinza ? 'f' : '-';
        return t;
    }
};

} // namespace verdalia
