// O aparelho de som de verdade, com um arquivo no lugar do alto-falante: o que se gravou é comparado, amostra por
// amostra, com os sons do programa.
#include "platform/tela/aparelho_de_som.h"
#include "roteiro.h"

#include <SDL.h>

namespace verdalia {
namespace {

// Sem as amostras nulas das pontas.
std::string sem_silencio(std::string som) {
    const auto ultima = som.find_last_not_of('\0');
    if (ultima == std::string::npos) return "";
    som.resize((ultima + 2) / 2 * 2);
    return som.substr(som.find_first_not_of('\0') / 2 * 2);
}

using ComAparelho = PartidaNaTela;

TEST_F(ComAparelho, SomNovoCortaOAnterior) {
    const std::filesystem::path fita = pasta.raiz / "fita";
    SDL_setenv("SDL_AUDIODRIVER", "disk", 1);
    SDL_setenv("SDL_DISKAUDIOFILE", fita.c_str(), 1);
    SDL_setenv("SDL_DISKAUDIODELAY", "2", 1); // dez vezes mais depressa que o som
    auto aparelho = std::make_unique<AparelhoDeSom>();
    aparelho->toca("\\hortafim.wav");
    while (conteudo(fita).size() < 8192) SDL_Delay(1);
    EXPECT_GT(aparelho->toca("\\blip.wav"), 20);
    const std::uint64_t limite = SDL_GetTicks64() + 20000;
    while (Mix_Playing(-1) != 0 && SDL_GetTicks64() < limite) SDL_Delay(1);
    aparelho.reset();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    for (const char* nome : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"}) unsetenv(nome);
    const auto amostras = [](const char* nome) { return sem_silencio(conteudo(*acha(nome)).substr(44)); };
    const std::string soou = sem_silencio(conteudo(fita)), blip = amostras("\\blip.wav");
    ASSERT_TRUE(soou.ends_with(blip)); // nada depois dele
    EXPECT_TRUE(amostras("\\hortafim.wav").starts_with(sem_silencio(soou.substr(0, soou.size() - blip.size()))));
}

} // namespace
} // namespace verdalia
