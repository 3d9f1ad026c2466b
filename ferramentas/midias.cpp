// Faz as figuras e os textos do programa: gera_midias PROJETO CONSTRUÇÃO. Sai com 1 quando uma fonte está quebrada.
#include <cstdio>
#include <exception>

#include "arquivo.h"
#include "oficina.h"

int main(int quantos, char** argumentos) {
    using namespace verdalia;
    if (quantos != 3) {
        std::fprintf(stderr, "Uso: gera_midias PROJETO CONSTRUÇÃO\n");
        return 2;
    }
    try {
        const Balanco b = produz({argumentos[1], argumentos[2], le_arquivo("/proc/self/exe")});
        for (const std::string& erro : b.erros) std::fprintf(stderr, "mídias: %s\n", erro.c_str());
        std::printf("mídias: %d feitas, %d removidas; faltam %d figuras, %d textos\n", b.feitas, b.removidas,
                    b.faltam[0], b.faltam[1]);
        return b.erros.empty() ? 0 : 1;
    } catch (const std::exception& erro) {
        std::fprintf(stderr, "mídias: %s\n", erro.what());
        return 1;
    }
}
