// O motor contra documentos quaisquer: o primeiro byte diz se os outros são um documento, ou um índice e um texto já
// compilados e estragados (os dois primeiros dizem onde um acaba e o outro começa).
#include "hypertext/regras/quadro_de_teste.h"
#include "platform/base/caminhos.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace verdalia {
namespace {

// Some com o programa, mesmo quando ele para num erro.
struct Pasta {
    std::string raiz = (std::filesystem::temp_directory_path() / "verdalia-fuzz-XXXXXX").string();
    Pasta() {
        if (mkdtemp(raiz.data()) == nullptr) std::abort();
        define_pastas(raiz, raiz);
    }
    ~Pasta() { std::filesystem::remove_all(raiz); }
    void escreve(const char* nome, std::string_view bytes) const {
        std::ofstream(raiz + nome, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
};

void confere(bool certo) {
    if (!certo) std::abort();
}

void le_tudo() {
    QuadroDeTeste quadro;
    confere(n_topicos <= max_topicos);
    for (int i = 1; i <= n_topicos; ++i) {
        n_linhas = static_cast<std::int16_t>(quebra_linhas(indice[i].topico, quadro));
        confere(n_linhas >= 3 && n_linhas <= max_linhas + 1);
        for (const int primeira : {0, n_linhas / 2, n_linhas - 1}) {
            desenha_linhas(quadro, primeira, n_linhas);
            confere(n_zonas_tela <= max_ligacoes);
            for (int z = 1; z <= n_zonas_tela; ++z) confere(!zonas[z].alvo.empty() && zonas[z].base > zonas[z].topo);
            sobre_zona(quadro.x, quadro.y);
        }
    }
}

} // namespace
} // namespace verdalia

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* dados, std::size_t tamanho) {
    using namespace verdalia;
    static const Pasta pasta;
    std::string_view bytes(reinterpret_cast<const char*>(dados), tamanho);
    if (bytes.size() < 4) return 0;
    if (bytes[0] % 2 == 0) {
        pasta.escreve("/doc.Txt", bytes.substr(1));
        compila_texto("\\doc.Txt");
    } else {
        const std::size_t corte = static_cast<std::size_t>(dados[1]) * 256 + dados[2];
        pasta.escreve("/doc.IDX", bytes.substr(3).substr(0, corte));
        pasta.escreve("/doc.HTF", bytes.substr(std::min(3 + corte, bytes.size())));
    }
    abre_hipertexto("\\doc.XXX");
    le_tudo();
    fecha_hipertexto();
    return 0;
}
