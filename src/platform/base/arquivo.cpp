#include "platform/base/arquivo.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void falha(const fs::path& arquivo, const std::string& que) {
    throw std::runtime_error("O arquivo \"" + arquivo.filename().string() + "\" " + que);
}

[[noreturn]] void falha_ao_gravar(const fs::path& arquivo, const fs::path& novo, int codigo) {
    std::error_code ignorado;
    fs::remove(novo, ignorado);
    if (codigo == ENOSPC || codigo == EDQUOT) falha(arquivo, "não pôde ser gravado: o disco está cheio.");
    falha(arquivo, "não pôde ser gravado na pasta \"" + arquivo.parent_path().string() + "\" (" +
                       std::generic_category().message(codigo) + "). Veja as permissões da pasta.");
}

bool escreve_tudo(int aberto, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t escritos = write(aberto, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
    return fsync(aberto) == 0;
}

} // namespace

std::string le_arquivo(const fs::path& arquivo, std::size_t maximo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    std::string bytes(maximo + 1, '\0');
    entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!entrada && !entrada.eof()) falha(arquivo, "não pôde ser lido.");
    bytes.resize(static_cast<std::size_t>(entrada.gcount()));
    if (bytes.size() > maximo) falha(arquivo, "é grande demais.");
    return bytes;
}

void grava_arquivo(const fs::path& arquivo, std::string_view bytes) {
    const fs::path novo = fs::path(arquivo) += ".novo";
    const int aberto = open(novo.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (aberto < 0) falha_ao_gravar(arquivo, novo, errno);
    const bool inteiro = escreve_tudo(aberto, bytes);
    const int por_que = errno;
    close(aberto);
    if (!inteiro) falha_ao_gravar(arquivo, novo, por_que);
    if (rename(novo.c_str(), arquivo.c_str()) != 0) falha_ao_gravar(arquivo, novo, errno);
}

int espera_disco(const fs::path& pasta) {
    const int aberta = open(pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (aberta < 0) return 0; // numa pasta que não se deixa ler não há por que esperar
    const int codigo = fsync(aberta) == 0 ? 0 : errno;
    close(aberta);
    // Há sistemas de arquivos que não sabem esperar por uma pasta, e não é falha.
    return codigo == ENOSPC || codigo == EDQUOT || codigo == EIO ? codigo : 0;
}

} // namespace verdalia
