#include "roteiro.h"

#include "platform/tela/botao.h"
#include "platform/tela/caixa_texto.h"
#include "platform/tela/figura.h"
#include "platform/tela/laco_interno.h"
#include "platform/tela/lista.h"
#include "platform/tela/matriz.h"
#include "platform/tela/opcao.h"

namespace verdalia {
namespace {

constexpr TelaId id_bancada{100};
constexpr TelaId id_caixa{101};

// Uma tela de teste com um pouco de tudo.
struct Bancada : Tela {
    Figura canteiro{*this, "canteiro"};
    Matriz<Figura> muda{*this, "muda"};
    Botao botao{*this, "botao"};
    Marca marca{*this, "marca"};
    Matriz<Opcao> opcao{*this, "opcao"};
    ListaSuspensa lista{*this, "lista"};
    CaixaTexto nome_{*this, "nome"};
    Temporizador relogio_1{*this};
    std::vector<std::string> feitos;

    Bancada() : Tela("bancada") {}
    void Form_Load() override {
        constexpr Lugar lugares[] = {{"canteiro", -1, 300, 200, 420, 420},
                                     {"botao", -1, 20, 20, 100, 40, "&Ok"},
                                     {"marca", -1, 20, 80, 100, 20, "Som"},
                                     {"lista", -1, 20, 140, 100, 30},
                                     {"nome", -1, 20, 500, 200, 30}};
        arruma(*this, lugares);
        for (int i = 0; i < 2; ++i) {
            muda.cria(i).esquerda = 20 + 60 * i;
            muda(i).topo = 300;
            muda(i).largura = muda(i).altura = 40;
            muda(i).arrasta = true;
            opcao.cria(i).topo = 400 + 30 * i;
            opcao(i).largura = 100;
            opcao(i).altura = 20;
        }
        canteiro.grade = {10, 10, 42, 42};
        canteiro.solta = [this](const Arraste& a) {
            const int casa = static_cast<int>(a.y / 42) * 10 + static_cast<int>(a.x / 42);
            feitos.push_back("caiu " + a.fonte->nome + std::to_string(a.fonte->indice) + " em " + std::to_string(casa));
        };
        muda(0).clique = [this] { feitos.push_back("clique na muda"); };
        muda(1).sobre = [this](const Arraste&) { feitos.push_back("sobre a muda 1"); };
        botao.clique = [this] { feitos.push_back("botão"); };
        lista.itens = {"C:", "D:", "E:"};
        lista.escolhido = 0;
        nome_.maximo = 4;
    }
    void Form_Click() override { feitos.push_back("fundo"); }
    bool Form_DragDrop(const Arraste& a) override {
        feitos.push_back("fora " + a.fonte->nome);
        return false;
    }
    void desistiu_do_arraste() override { feitos.push_back("desistiu"); }
};

struct Caixa : Tela {
    Botao fecha{*this, "fecha"};
    Caixa() : Tela("caixa") {}
    void Form_Load() override {
        dialogo = fechavel = true;
        largura = 300;
        altura = 100;
        fecha.largura = 80;
        fecha.altura = 30;
        fecha.clique = [this] { descarrega(*this); };
    }
};

constexpr FabricaDeTela fabricas[] = {{id_bancada, nova<Bancada>}, {id_caixa, nova<Caixa>}};

struct Laco : PartidaNaTela {
    static Bancada& comeca() {
        registra_telas(fabricas, [] { termina(); });
        mostra(id_bancada);
        return carrega_como<Bancada>(id_bancada);
    }
    Bancada& bancada = comeca();
    std::vector<std::string>& feitos = bancada.feitos;
    using Lista = std::vector<std::string>;
};

TEST_F(Laco, ClicaNoDeCimaNoInativoENoFundo) {
    bancada.muda(1).esquerda = 30; // por cima da muda 0
    bancada.muda(1).arrasta = false;
    bancada.muda(1).clique = [this] { feitos.push_back("muda de cima"); };
    roteiro.clica("muda", 1).clica("botao").confere([this] { bancada.botao.ativo = false; }).clica("botao");
    roteiro.clica_em(200, 10).clica("muda", 1, 2);
    laco();
    EXPECT_EQ(feitos, (Lista{"muda de cima", "botão", "fundo"}));
}

TEST_F(Laco, ArrasteCaiNaCasaENoFundoDeOndeVoltaVoandoENaoForaDaJanela) {
    roteiro.arrasta("muda", 0, 300 + 41.9, 200 + 42).confere([] { EXPECT_FALSE(voando()); });
    roteiro.arrasta("muda", 1, 250, 30).confere([] { EXPECT_TRUE(voando()); }).espera_ms(400);
    roteiro.confere([] { EXPECT_FALSE(voando()); }).arrasta("muda", 0, 900, 700);
    roteiro.clica("muda", 0).arrasta("muda", 0, bancada.muda(1).esquerda + 5, 305);
    laco();
    EXPECT_EQ(feitos, (Lista{"caiu muda0 em 10", "sobre a muda 1", "fora muda", "clique na muda", "sobre a muda 1"}));
}

TEST_F(Laco, QuemESomeNoProprioEventoNaoEUsadoDepois) {
    bancada.canteiro.solta = [this](const Arraste& a) {
        bancada.muda.destroi(a.fonte->indice);
        feitos.push_back("caiu " + a.fonte->nome);
    };
    bancada.muda(1).sobre = nullptr;
    roteiro.arrasta("muda", 1, 320, 220).confere([this] { EXPECT_FALSE(bancada.muda.existe(1)); }).clica_em(85, 320);
    laco();
    EXPECT_EQ(feitos, (Lista{"caiu muda", "fundo"}));
}

TEST_F(Laco, TecladoPercorreTodosOsControlesAcionaEArrasta) {
    std::string visitados;
    for (int i = 0; i < 9; ++i) roteiro.tecla(SDLK_TAB).confere([&] { visitados += bancada.foco->nome + " "; });
    // Espaço clica na muda; Enter a pega, as setas a levam à casa de baixo, Enter a larga.
    roteiro.confere([this] { bancada.foco = &bancada.muda(0); })
        .teclas({SDLK_SPACE, SDLK_RETURN, SDLK_RIGHT, SDLK_DOWN, SDLK_RETURN});
    roteiro.teclas({SDLK_RETURN, SDLK_RIGHT, SDLK_ESCAPE}); // desiste
    // A letra sublinhada aciona o botão; com a caixa de texto em foco, é só uma letra.
    roteiro.tecla(SDLK_o).clica("nome").tecla(SDLK_o).escreve("o");
    laco();
    EXPECT_EQ(feitos, (Lista{"clique na muda", "caiu muda0 em 30", "desistiu", "botão"}));
    EXPECT_EQ(bancada.nome_.texto, "o");
    EXPECT_EQ(visitados, "botao marca lista muda muda opcao opcao nome botao ");
}

TEST_F(Laco, CaixaDeTextoListaMarcaEOpcao) {
    bancada.nome_.muda = [this] { feitos.push_back(bancada.nome_.texto); };
    roteiro.clica("nome").escreve("çã").escreve("éî").escreve("x").teclas({SDLK_BACKSPACE, SDLK_HOME, SDLK_DELETE});
    roteiro.escreve("A").clica("lista").clica_em(60, 140 + 30 * 2 + 15);
    roteiro.confere([this] { EXPECT_EQ(bancada.lista.escolhido, 1); }).tecla(SDLK_DOWN).tecla(SDLK_RETURN);
    roteiro.confere([this] { EXPECT_TRUE(bancada.lista.esta_aberta); }).tecla(SDLK_RETURN);
    roteiro.clica("marca").clica("opcao", 0).clica("opcao", 1);
    laco();
    EXPECT_EQ(feitos, (Lista{"çã", "çãéî", "çãé", "ãé", "Aãé"})); // conta letras, e não bytes
    EXPECT_EQ(bancada.lista.escolhido, 2);
    EXPECT_FALSE(bancada.lista.esta_aberta || bancada.opcao(0).marcada);
    EXPECT_TRUE(bancada.marca.marcada && bancada.opcao(1).marcada);
}

TEST_F(Laco, DicaEDeQuemAChamouESoVemQuandoOMouseAnda) {
    bancada.botao.dica = "do botão";
    bancada.marca.dica = "da marca";
    bancada.canteiro.dica_viva = [](double x, double) { return x < 42 ? "primeira" : "segunda"; };
    // A que se vê depois de um tempo.
    const auto dica = [this](int ms, const char* esperada) -> Roteiro& {
        return roteiro.espera_ms(ms).confere(
            [esperada] { EXPECT_EQ(estado_do_laco.dica_a_vista ? estado_do_laco.dica : "", esperada); });
    };
    roteiro.aponta(60, 40);
    dica(500, "");
    dica(200, "do botão").tecla(SDLK_TAB).tecla(SDLK_TAB);
    dica(0, "");
    dica(700, "da marca").aponta(61, 41); // o mouse, mesmo no mesmo botão, toma-a de volta
    dica(700, "do botão").clica("botao");
    dica(2000, "").aponta(310, 210); // com o clique, a dica dele já não vem
    dica(700, "primeira").aponta(400, 210);
    dica(700, "segunda").aponta(85, 320).espera_ms(50).confere([this] {
        bancada.muda(1).dica = "da muda"; // aparece debaixo do mouse parado
        mostra(id_bancada);
    });
    dica(2000, "").aponta(86, 320);
    dica(700, "da muda");
    laco();
}

TEST_F(Laco, TemporizadorAndaComDialogoPorCimaEEmRepousoNadaAcorda) {
    int tiques = 0;
    bancada.relogio_1.dispara = [&] {
        if (++tiques == 3) mostra_modal(id_caixa);
    };
    bancada.relogio_1.intervalo = 100;
    roteiro.espera_ms(350).confere([&] { EXPECT_EQ(tiques, 3); }).esta_em("caixa");
    // Quem abriu o diálogo não dispara de novo dentro dele.
    roteiro.espera_ms(500).confere([&] { EXPECT_EQ(tiques, 3); }).clica("fecha").espera_ms(210);
    roteiro.confere([&] {
        EXPECT_GE(tiques, 5);
        bancada.relogio_1.intervalo = 0;
    });
    // Em repouso nada se pinta, e o programa não acorda.
    int pinturas = 0, esperas = 0;
    roteiro.espera_ms(1000).confere([&] {
        pinturas = roteiro.pinturas;
        esperas = roteiro.esperas;
    });
    roteiro.espera_ms(60'000);
    laco();
    EXPECT_LE(tiques, 6);
    EXPECT_EQ(roteiro.pinturas, pinturas);
    EXPECT_LE(roteiro.esperas, esperas + 2);
}

TEST_F(Laco, DialogoSeguraOMouseESeFechaPelaCaixaEPeloTeclado) {
    bancada.botao.clique = [this] {
        mostra_modal(id_caixa);
        feitos.push_back("voltou");
    };
    roteiro.clica("botao").clica_em(200, 10).esta_em("caixa").confere([&] {
        const Retangulo r = tela_ativa()->caixa_de_fechar();
        roteiro.clica_em(r.x + r.largura / 2, r.y + r.altura / 2).esta_em("bancada").clica("botao").tecla(SDLK_ESCAPE);
        roteiro.esta_em("bancada").clica_em(200, 10);
    });
    laco();
    EXPECT_EQ(feitos, (Lista{"voltou", "voltou", "fundo"}));
}

TEST_F(Laco, DuasTelasNaoSeEncontramQuandoUmaSaiPorBaixoDoDialogo) {
    bancada.relogio_1.dispara = [this] {
        bancada.relogio_1.intervalo = 0;
        descarrega(bancada);
    };
    bancada.botao.clique = [this] {
        bancada.relogio_1.intervalo = 100;
        mostra_modal(id_caixa);
        EXPECT_FALSE(carregada(id_bancada));
        feitos.push_back("a tela ainda existe"); // só se destrói depois deste evento
        EXPECT_EQ(feitos.size(), 1U);
    };
    roteiro.clica("botao").espera_ms(200).esta_em("caixa").clica("fecha");
    laco();
    EXPECT_EQ(tela_ativa(), nullptr);
}

} // namespace
} // namespace verdalia
