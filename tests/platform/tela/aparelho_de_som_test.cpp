// O aparelho de som de verdade, com um arquivo no lugar do alto-falante: o que se gravou é comparado, amostra por
// amostra, com os sons do programa.
#include "flow/comum/falas.h"
#include "platform/tela/aparelho_de_som.h"
#include "roteiro.h"

#include <SDL.h>

namespace verdalia {
namespace {

// As amostras do arquivo que o jogo acha sob esse nome.
std::string amostras(const std::string& caminho) {
    const auto arquivo = acha(caminho);
    EXPECT_TRUE(arquivo) << caminho;
    return arquivo ? conteudo(*arquivo).substr(44) : "";
}

// Sem as amostras nulas das pontas.
std::string sem_silencio(std::string som) {
    const auto ultima = som.find_last_not_of('\0');
    if (ultima == std::string::npos) return "";
    som.resize((ultima + 2) / 2 * 2);
    return som.substr(som.find_first_not_of('\0') / 2 * 2);
}

struct ComAparelho : PartidaNaTela {
    ComAparelho() {
        SDL_setenv("SDL_AUDIODRIVER", "disk", 1);
        SDL_setenv("SDL_DISKAUDIOFILE", (pasta.raiz / "fita").c_str(), 1);
        SDL_setenv("SDL_DISKAUDIODELAY", "2", 1); // dez vezes mais depressa que o som
        aparelho = std::make_unique<AparelhoDeSom>();
        roteiro.aparelho = [this](const std::string& caminho) { return aparelho->toca(caminho); };
    }
    ~ComAparelho() override {
        desliga();
        for (const char* nome : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"}) unsetenv(nome);
    }
    void desliga() {
        aparelho.reset();
        if (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    // Tudo o que soou desde que o aparelho foi ligado, até o fim do último som; o próximo recomeça a fita.
    std::string ouvido() {
        const bool ligado = Mix_QuerySpec(nullptr, nullptr, nullptr) != 0;
        const std::uint64_t limite = SDL_GetTicks64() + 20000;
        while (ligado && Mix_Playing(-1) != 0 && SDL_GetTicks64() < limite) SDL_Delay(1);
        EXPECT_TRUE(!ligado || Mix_Playing(-1) == 0);
        desliga();
        const std::string fita = conteudo(pasta.raiz / "fita");
        std::filesystem::remove(pasta.raiz / "fita");
        aparelho = std::make_unique<AparelhoDeSom>();
        return sem_silencio(fita);
    }

    std::unique_ptr<AparelhoDeSom> aparelho;
};

TEST_F(ComAparelho, SomNovoCortaOAnterior) {
    efeito("\\hortafim.wav", sem_esperar);
    while (conteudo(pasta.raiz / "fita").size() < 8192) SDL_Delay(1);
    efeito("\\blip.wav", sem_esperar);
    const std::string fita = ouvido(), trilha = sem_silencio(amostras("\\hortafim.wav"));
    const std::string blip = sem_silencio(amostras("\\blip.wav"));
    ASSERT_TRUE(fita.ends_with(blip)); // nada depois dele
    const std::string antes = sem_silencio(fita.substr(0, fita.size() - blip.size()));
    EXPECT_TRUE(trilha.starts_with(antes));
}

TEST_F(ComAparelho, SomEsperadoSeguraQuemOPediu) {
    som_ligado = true;
    const auto duracao = static_cast<int>(amostras(dir_audio + "\\ar1.wav").size() / 2 * 1000 / 22050);
    roteiro.clica("lbl_total").esta_em("ok").clica("opções").clica("plc", 17).espera_ms(duracao - 20);
    roteiro.confere([] { EXPECT_EQ(seq_pedido[cult_alface], 0); }); // ainda falando: o clique espera a vez
    roteiro.espera_ms(500).confere([] { EXPECT_EQ(seq_pedido[cult_alface], 1); });
    mostra(TelaId::feira_horta);
    laco();
}

} // namespace
} // namespace verdalia
