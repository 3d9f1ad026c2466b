// Um disco que falha, ou mata o programa, quando se pede.
#pragma once

namespace verdalia {

// Enquanto existe, todo banco aberto passa por ele. Só pode haver um.
struct DiscoDeTeste {
    DiscoDeTeste();
    ~DiscoDeTeste();
    int falha_em = -1;         // a partir desta escrita (0 é a primeira)...
    int codigo_falha = 0;      // ...todas dão este código do SQLite
    bool toda_chamada = false; // conta e falha tudo o que se pede ao sistema, e não só as escritas
    bool so_uma = false;       // falha uma vez só
    bool mata = false;         // em vez de falhar, a energia acaba ali
    int chamadas = 0;          // as que já houve, com as que falharam
    int por_descarregar = 0;   // escritas desde a última descarga
    bool so_leitura = false;   // os bancos abrem como se faltasse permissão para gravar
};

// Faz a gravação falhar na primeira chamada, depois na segunda... até que não chegue àquela em que falharia; `confere`
// recebe se gravou. Devolve quantas chamadas houve.
template <class Grava, class Confere> int falha_em_cada_uma(DiscoDeTeste& disco, Grava grava, Confere confere) {
    for (int qual = 0;; ++qual) {
        disco.chamadas = 0;
        disco.falha_em = qual;
        const bool gravou = grava();
        const bool falhou = disco.chamadas > qual;
        disco.falha_em = -1;
        confere(gravou);
        if (!falhou) return qual;
    }
}

} // namespace verdalia
