// A sementeira dos testes: abre a tela sobre as tabelas que o teste encheu e leva o mouse até as leiras.
#pragma once
#include "roteiro.h"

#include "data/plano.h"

namespace verdalia {

struct Sementeira : PartidaNaTela {
    Sementeira() { prepara_banco(); }
    // Começa de novo, como quem entra na tela.
    controle_da_sementeira& abre() {
        recomeca_laco();
        auto_abastecido = auto_abastecimento();
        mostra(TelaId::controle_da_sementeira);
        return carrega_como<controle_da_sementeira>(TelaId::controle_da_sementeira);
    }
    // Arrasta um botão de cultura até a leira.
    Roteiro& semeia_com_mouse(const char* botao, int leira) {
        return roteiro.arrasta(botao, -1, 185.5 + leira % 11 * 44, leira < 11 ? 280 : 432);
    }
    Roteiro& leva_para_fora(int leira) { return roteiro.arrasta("Image3", leira, 420, 575); }
    Roteiro& quadro_parabens() {
        return roteiro.esta_em("ok_help")
            .confere([] {
                EXPECT_EQ(tela_ativa()->titulo, "Parabéns");
                EXPECT_FALSE(tela_ativa()->fundo->falta);
            })
            .tecla(SDLK_ESCAPE);
    }
    Roteiro& mensagem(const char* esperada) {
        return roteiro.esta_em("ok")
            .confere([esperada] { EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, esperada); })
            .clica("opções");
    }
    // As colunas dos rótulos à vista: "0 6" quando faltam alface e tomate.
    static std::string faltam(controle_da_sementeira& s) {
        std::string lista;
        for (const auto& [k, rotulo] : s.Label3)
            if (rotulo->visivel) lista += (lista.empty() ? "" : " ") + std::to_string(k);
        return lista;
    }
    static int destacados(controle_da_sementeira& s) {
        int n = 0;
        for (const auto& figura : s.c_) n += figura->figura->caminho.find("\\anima\\az_") != std::string::npos;
        return n;
    }
    // A leira como o jogador a vê: a figura da muda e a do crescimento.
    static std::string leira(controle_da_sementeira& s, int r) {
        const auto nome = [](const ImagemRef& f) {
            return f ? f->caminho.substr(f->caminho.rfind('\\') + 1) : std::string("vazia");
        };
        return nome(s.Image3(r).figura) + " " + nome(s.CRESCE(r).figura);
    }
    // As marcas das primeiras leiras: "_" escondida, "[ok]" feita, "[]" por fazer.
    static std::string marcas(controle_da_sementeira& s, int quantas) {
        std::string t;
        for (int r = 0; r < quantas; ++r) t += s.Label4(r).visivel ? "[" + s.Label4(r).texto + "]" : "_";
        return t;
    }
    // O botão: "aceso", "feito" (com cor, apagado) ou "apagado".
    static std::string botao(controle_da_sementeira& s, int i) {
        return s.Command4(i).ativo ? "aceso" : s.Command4(i).cor_fundo != cor_cinza ? "feito" : "apagado";
    }
};

} // namespace verdalia
