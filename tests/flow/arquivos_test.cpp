// Cada arquivo do programa faltando, vazio, cortado, com bytes ao acaso ou trocado por uma pasta.
#include "flow/regras/calendario.h"
#include "platform/tela/aparelho_de_som.h"
#include "roteiro.h"

#include <random>

namespace verdalia {
namespace {

namespace fs = std::filesystem;

enum class Estrago { falta, vazio, cortado, ao_acaso, pasta };
constexpr Estrago estragos[] = {Estrago::falta, Estrago::vazio, Estrago::cortado, Estrago::ao_acaso, Estrago::pasta};

// O programa instalado noutra pasta, feito de atalhos para o que se construiu, com o que se quiser estragado.
struct Arquivos : PartidaNaTela {
    Arquivos() {
        SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
        roteiro.aparelho = [this](const std::string& caminho) { return aparelho->toca(caminho); };
        define_pastas(jogador, programa);
        conserta();
        prepara_banco();
        primeira_carga = false;
        seq_pedido[cult_alface] = 2;
        for (std::int16_t i = 0; i < 21; ++i) planta(i, static_cast<std::int16_t>(i + 1), 2);
        for (int r = 0; r < 22; ++r) semeia(r, cult_alface, static_cast<std::int16_t>(r % 5));
        planta(30, cult_vago, 0);
        setenv("PATH", "/nao/ha/nada", 1);
    }
    ~Arquivos() override {
        aparelho.reset();
        if (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
        unsetenv("SDL_AUDIODRIVER");
        setenv("PATH", caminho_de_busca.c_str(), 1);
    }

    void conserta() {
        fs::remove_all(programa);
        const fs::path de = fs::canonical(VERDALIA_PROGRAMA);
        for (const auto& item : fs::recursive_directory_iterator(de)) {
            const fs::path para = programa / item.path().lexically_relative(de);
            fs::create_directories(para.parent_path());
            if (item.is_regular_file()) fs::create_symlink(item.path(), para);
        }
    }
    static void estraga(const fs::path& onde, Estrago como) {
        std::string bytes = conteudo(onde);
        fs::remove_all(onde);
        if (como == Estrago::falta) return;
        if (como == Estrago::pasta) {
            fs::create_directories(onde / "dentro");
            return;
        }
        std::mt19937 sorte(7);
        bytes.resize(como == Estrago::vazio ? 0 : bytes.size() / 2);
        if (como == Estrago::ao_acaso)
            for (char& b : bytes) b = static_cast<char>(sorte());
        escreve(onde, bytes);
    }
    std::vector<fs::path> todos() const {
        std::vector<fs::path> lista;
        for (const auto& item : fs::recursive_directory_iterator(programa))
            if (item.is_symlink() && item.path().parent_path().filename() != "fontes") lista.push_back(item.path());
        return lista;
    }
    // Responde que sim e fecha o que se abrir, até que a tela volte a mandar.
    Roteiro& fecha_dialogos() {
        for (int i = 0; i < 4; ++i)
            roteiro.confere([] {
                Tela* t = tela_ativa();
                if (auto* questao = dynamic_cast<form_ok_nao*>(t))
                    questao->opções_Click(0);
                else if (t != nullptr && t->dialogo)
                    t->pede_fechar();
            });
        return roteiro.espera_ms(100);
    }
    void visita(TelaId tela, const char* controle, int indice = -1) {
        SCOPED_TRACE(std::to_string(static_cast<int>(tela)) + controle);
        som_ligado = musica_ligada = true;
        recomeca_laco();
        fecha_dialogos().espera_ms(1500);
        if (*controle != '\0') roteiro.clica(controle, indice).espera_ms(2000);
        fecha_dialogos();
        mostra(tela); // que já pode abrir um aviso
        laco();
        EXPECT_TRUE(roteiro.feito());
        volta_ao_tempo_real();
    }
    // Todas as telas, com o que cada uma abre.
    void passeia() {
        recomeca_laco();
        roteiro.clica("Command1");
        fecha_dialogos();
        joga();
        for (int i = 0; i < 13; ++i) visita(TelaId::INTRONEW, "Label1", i);
        visita(TelaId::feira_horta, "plc", 0);
        for (const int botao : {5, 7, 9}) visita(TelaId::trabalhando_na_horta, "Command2", botao);
        visita(TelaId::controle_da_sementeira, "previsao");
        visita(TelaId::age, "pic_imp");
        visita(TelaId::conf, "interroga");
        visita(TelaId::gamedio, "figura", 0);
        for (const char* topico :
             {"Atividades", "Culturas1", "Culturas2", "Atividades_Sem", "Orgânico", "Opções1", "PGM", "Agenda"}) {
            topico_help = topico;
            tela_origem = "horta";
            visita(TelaId::help, "");
        }
    }
    std::unique_ptr<AparelhoDeSom> aparelho = std::make_unique<AparelhoDeSom>();
    const fs::path programa = pasta.raiz / "programa";
    const std::string caminho_de_busca = std::getenv("PATH");
};

TEST_F(Arquivos, TodosEstragadosDoMesmoModoENenhumaTelaCai) {
    grava_semana(hoje());
    const auto no_disco = [this] { return consulta(arquivo, "SELECT * FROM st, sem, seq LIMIT 99"); };
    const std::string de_antes = no_disco();
    for (const Estrago como : estragos) {
        SCOPED_TRACE(static_cast<int>(como));
        conserta();
        for (const fs::path& do_jogo : todos()) estraga(do_jogo, como);
        estraga(jogador / "gm.mdb", como);
        passeia();
        EXPECT_EQ(no_disco(), de_antes);
    }
}

TEST_F(Arquivos, LetrasQueFaltamSaoSupridasPelasOutras) {
    const auto mede = [] {
        fecha_fontes();
        abre_fontes();
        return largura_texto("Horta", {.familia = Familia::legenda, .corpo = 12, .negrito = true});
    };
    for (const Estrago como : {Estrago::falta, Estrago::ao_acaso, Estrago::pasta}) {
        conserta();
        for (const auto& letra : fs::directory_iterator(fs::canonical(VERDALIA_PROGRAMA) / "fontes")) {
            EXPECT_GT(mede(), 20) << letra << static_cast<int>(como);
            estraga(programa / "fontes" / letra.path().filename(), como);
        }
        EXPECT_THROW(mede(), std::runtime_error);
    }
    conserta();
    mede();
}

} // namespace
} // namespace verdalia
