#include "platform/base/trava.h"

#include "platform/base/caminhos.h"

#include <cerrno>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <unistd.h>

namespace verdalia {

bool trava_partida() {
    // Fica aberto até o processo terminar: é o fim do processo, mesmo por acidente, que solta a trava.
    static int arquivo = -1;
    if (arquivo >= 0) return true;

    const std::filesystem::path caminho = para_gravar("\\verdalia.trava");
    const int novo = open(caminho.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (novo < 0)
        throw std::runtime_error("O jogo não pode gravar na pasta \"" + caminho.parent_path().string() +
                                 "\". Veja se há espaço no disco e permissão para gravar ali.");
    if (flock(novo, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(novo);
        return false;
    }
    // Há pastas de rede sem travas; jogar sem ela é melhor que não jogar.
    arquivo = novo;
    return true;
}

} // namespace verdalia
