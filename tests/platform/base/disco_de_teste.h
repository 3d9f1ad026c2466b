// Um disco que falha, ou mata o programa, quando se pede.
#pragma once

namespace verdalia {

// Enquanto existe, todo banco aberto passa por ele. Só pode haver um.
struct DiscoDeTeste {
    DiscoDeTeste();
    ~DiscoDeTeste();
    DiscoDeTeste(const DiscoDeTeste&) = delete;
    DiscoDeTeste& operator=(const DiscoDeTeste&) = delete;

    int falha_em = -1;    // a partir desta escrita (0 é a primeira)...
    int codigo_falha = 0; // ...todas dão este código do SQLite
    bool mata = false;    // em vez de falhar, o programa acaba ali
    int escritas = 0;
    int por_descarregar = 0; // escritas desde a última descarga
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

} // namespace verdalia
