// O que se vê: cada figura é a que se desenhou, e o que se escreve sobre uma se lê.
#include "prancha.h"

#include <cstring>

namespace verdalia {
namespace {

namespace fs = std::filesystem;

TEST(Figuras, CadaUmaEAQueSeDesenhou) {
    std::vector<fs::path> figuras;
    for (const auto& e : fs::recursive_directory_iterator(VERDALIA_PROGRAMA))
        if (e.path().extension() == ".bmp" || e.path().extension() == ".jpg") figuras.push_back(e.path());
    std::sort(figuras.begin(), figuras.end());
    Prancha miniaturas(VERDALIA_TESTES "/platform/tela/miniaturas.png", 8, 8);
    for (const fs::path& arquivo : figuras) {
        const Superficie figura(IMG_Load(arquivo.c_str()));
        ASSERT_TRUE(figura) << arquivo;
        EXPECT_LT(miniaturas.compara(*figura).media, 2) << arquivo;
    }
}

struct Legivel : PartidaNaTela {
    // Pinta a tela e devolve o pedaço dela.
    std::vector<std::uint32_t> pinta(Tela& t, const Retangulo& r) {
        Pintor pintor(roteiro.janela.get());
        t.pinta(pintor);
        std::vector<std::uint32_t> pontos;
        for (int y = int(r.y); y < int(r.y + r.altura); ++y) {
            const auto* linha = reinterpret_cast<const std::uint32_t*>(
                static_cast<std::uint8_t*>(roteiro.janela->pixels) + std::ptrdiff_t{y} * roteiro.janela->pitch);
            pontos.insert(pontos.end(), linha + int(r.x), linha + int(r.x + r.largura));
        }
        return pontos;
    }
};

TEST_F(Legivel, OQueSeEscreveSobreUmaFiguraTemContraste) {
    prepara_banco();
    int escritos = 0;
    for (const auto& fabrica : fabricas_do_jogo) {
        recomeca_laco();
        mostra(fabrica.id);
        Tela& t = carrega(fabrica.id);
        if (t.dialogo || !t.fundo) continue;
        for (Controle* c : t.controles) {
            const auto* rotulo = dynamic_cast<Rotulo*>(c);
            if (rotulo == nullptr || c->texto.empty() || !c->a_vista() || !c->ativo) continue;
            const Cor tinta = rotulo->quente ? cor_ligacao : c->letra.cor;
            const std::string texto = std::exchange(c->texto, "");
            const std::vector<std::uint32_t> vazio = pinta(t, c->lugar());
            c->texto = texto;
            const std::vector<std::uint32_t> escrito = pinta(t, c->lugar());
            int mau = 0, pontos = 0; // dos que a letra cobre
            for (std::size_t i = 0; i < vazio.size(); ++i) {
                if (vazio[i] == escrito[i]) continue;
                const auto canal = [&](int d) { return static_cast<std::uint8_t>(vazio[i] >> d & 255); };
                mau += contraste(tinta, {canal(16), canal(8), canal(0)}) < 4.5;
                ++pontos;
            }
            EXPECT_LE(mau, pontos / 20) << t.nome << ": " << texto;
            ++escritos;
        }
    }
    EXPECT_GT(escritos, 40);
}

} // namespace
} // namespace verdalia
