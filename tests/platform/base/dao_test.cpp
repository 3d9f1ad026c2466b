#include "platform/base/dao.h"

#include "apoio.h"
#include "platform/base/disco_de_teste.h"

#include <sqlite3.h>

namespace verdalia {

struct Dao : Partida {
    Workspace& area = DBEngine.Workspaces(0);

    Dao() { area.CreateDatabase("\\prova.mdb").executa("CREATE TABLE t (n INTEGER)"); }
    ~Dao() override { area.Close(); }

    void junta(int numero) {
        Database banco = area.OpenDatabase("\\prova.mdb");
        Recordset t = banco.OpenRecordset("t");
        t.AddNew();
        t.Fields("n") = numero;
        t.Update();
    }

    // Lido por uma conexão à parte: só o que está mesmo gravado.
    std::string gravado() const { return consulta(jogador / "prova.mdb", "SELECT group_concat(n, ' ') FROM t"); }
};

TEST_F(Dao, TransacoesSeEncaixam) {
    for (const bool confirma : {true, false}) { // a de dentro, desfeita, condena a de fora
        Passo fora(area);
        junta(1);
        {
            Passo dentro(area);
            junta(2);
            if (confirma) dentro.confirma();
        }
        EXPECT_EQ(gravado(), confirma ? "\n" : "1 2\n");
        if (confirma)
            fora.confirma();
        else
            EXPECT_THROW(fora.confirma(), ErroBanco);
    }
    EXPECT_THROW(area.CommitTrans(), ErroBanco);
    area.BeginTrans();
    junta(5);
    area.Close();
    EXPECT_EQ(gravado(), "1 2\n");
}

// Um disco cheio desfaz a transação por dentro: quem não percebe e segue em frente não grava nada solto.
TEST_F(Dao, NadaSeGravaForaDaTransacaoQueFalhou) {
    DiscoDeTeste disco;
    disco.codigo_falha = SQLITE_FULL;
    junta(1);
    Passo passo(area);
    disco.falha_em = disco.chamadas;
    EXPECT_THROW(junta(2), ErroBanco);
    disco.falha_em = -1;
    EXPECT_THROW(junta(3), ErroBanco);
    EXPECT_THROW(passo.confirma(), ErroBanco);
    EXPECT_EQ(gravado(), "1\n");
    junta(4);
    EXPECT_EQ(gravado(), "1 4\n");
}

} // namespace verdalia
