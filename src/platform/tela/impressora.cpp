#include "platform/tela/impressora.h"

#include "platform/base/relogio.h"
#include "platform/tela/laco.h"

#include <csignal>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace verdalia {

namespace {

constexpr int fatia_da_espera = 50; // milissegundos entre duas olhadas

// Os que ninguém espera: o visor, que fica aberto quanto se queira, e o `lp` que se interrompeu.
std::vector<pid_t> soltos;

void recolhe_os_que_acabaram() {
    std::erase_if(soltos, [](pid_t filho) { return waitpid(filho, nullptr, WNOHANG) != 0; });
}

// Começa outro programa, achado pelo PATH: numa sessão sua, para que se possa interrompê-lo com os seus filhos e para
// que não acabe com o jogo; sem entrada nem saída; sem nenhum arquivo do jogo, como a trava da partida.
std::optional<pid_t> comeca(const char* programa, const std::filesystem::path& arquivo) {
    posix_spawn_file_actions_t arquivos;
    posix_spawnattr_t jeito;
    posix_spawn_file_actions_init(&arquivos);
    posix_spawnattr_init(&jeito);
    for (const int canal : {0, 1, 2})
        posix_spawn_file_actions_addopen(&arquivos, canal, "/dev/null", canal == 0 ? O_RDONLY : O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&arquivos, 3);
    posix_spawnattr_setflags(&jeito, POSIX_SPAWN_SETSID);
    std::string nome = programa, caminho = arquivo.string();
    char* argumentos[] = {nome.data(), caminho.data(), nullptr};
    pid_t filho = 0;
    const int codigo = posix_spawnp(&filho, programa, &arquivos, &jeito, argumentos, environ);
    posix_spawnattr_destroy(&jeito);
    posix_spawn_file_actions_destroy(&arquivos);
    return codigo == 0 ? std::optional(filho) : std::nullopt;
}

} // namespace

Entrega manda_imprimir(const std::filesystem::path& arquivo) {
    recolhe_os_que_acabaram();
    const auto lp = comeca("lp", arquivo);
    if (!lp) return Entrega::sem_impressora;
    const std::int64_t limite = relogio->milissegundos() + paciencia_com_a_impressora;
    int fim = 0;
    while (waitpid(*lp, &fim, WNOHANG) == 0) {
        if (terminando() || relogio->milissegundos() >= limite) {
            kill(-*lp, SIGKILL);
            soltos.push_back(*lp);
            return Entrega::sem_resposta;
        }
        espera_som(fatia_da_espera);
    }
    return WIFEXITED(fim) && WEXITSTATUS(fim) == 0 ? Entrega::aceita : Entrega::recusada;
}

bool abre_no_visor(const std::filesystem::path& arquivo) {
    recolhe_os_que_acabaram();
    const auto visor = comeca("xdg-open", arquivo);
    if (visor) soltos.push_back(*visor);
    return visor.has_value();
}

} // namespace verdalia
