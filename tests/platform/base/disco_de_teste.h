// Um disco que anota tudo o que o SQLite lhe manda gravar e que falha quando se pede.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace verdalia {

struct Gravacao {
    enum class Tipo { escreve, corta, descarrega, apaga };
    std::string arquivo; // só o nome
    Tipo tipo;
    std::int64_t lugar; // onde escreve, ou o tamanho depois de cortar
    std::string bytes;
};

// Enquanto existe, todo banco aberto passa por ele. Só pode haver um.
struct DiscoDeTeste {
    DiscoDeTeste();
    ~DiscoDeTeste();
    DiscoDeTeste(const DiscoDeTeste&) = delete;
    DiscoDeTeste& operator=(const DiscoDeTeste&) = delete;

    std::vector<Gravacao> diario;
    int falha_em = -1;    // a partir desta escrita (0 é a primeira)...
    int codigo_falha = 0; // ...todas dão este código do SQLite
    int escritas = 0;
    bool so_leitura = false; // os bancos abrem como se faltasse permissão para gravar
};

// Grava com o disco cheio desde a primeira escrita, desde a segunda... até que caiba; `confere` recebe se gravou.
// Devolve quantas escritas couberam.
template <class Grava, class Confere> int enche_o_disco(Grava grava, Confere confere) {
    DiscoDeTeste disco;
    disco.codigo_falha = 13; // SQLITE_FULL
    for (int cabem = 0;; ++cabem) {
        disco.escritas = 0;
        disco.falha_em = cabem;
        const bool gravou = grava();
        disco.falha_em = -1;
        confere(gravou);
        if (gravou) return cabem;
    }
}

using Arquivos = std::map<std::string, std::string>; // nome, bytes

// O que do diário não tinha ido de vez para o disco quando a luz acabou.
enum class Perda { nenhuma, tudo, ao_acaso };

// Os arquivos como ficam quando a luz acaba depois das primeiras `ate` gravações.
Arquivos apos_queda(const Arquivos& antes, const std::vector<Gravacao>& diario, std::size_t ate, Perda perda,
                    std::mt19937& sorte);

} // namespace verdalia
