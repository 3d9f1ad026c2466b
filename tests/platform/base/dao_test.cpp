#include "platform/base/dao.h"

#include "apoio.h"
#include "platform/base/disco_de_teste.h"

#include <sqlite3.h>

namespace verdalia {

struct Dao : Partida {
    Workspace& area = DBEngine.Workspaces(0);

    Dao() {
        Database banco = area.CreateDatabase("\\prova.mdb");
        banco.executa("CREATE TABLE t (n INTEGER, s TEXT)");
    }
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

TEST_F(Dao, RegistrosEmOrdem) {
    Database banco = area.OpenDatabase("\\prova.mdb");
    Recordset t = banco.OpenRecordset("t");
    t.MoveNext(); // vazio: nada anda, e nada há para mudar
    EXPECT_TRUE(t.EOF());
    EXPECT_THROW(t.Edit(), ErroBanco);
    EXPECT_THROW(t.Update(), ErroBanco);
    for (const int n : {30, 10, 20}) {
        t.AddNew();
        EXPECT_TRUE(t.Fields("n").nulo());
        t.Fields("n") = n;
        if (n == 10) t.Fields("s") = "açafrão";
        t.Update();
    }
    t.MoveFirst();
    t.Delete();
    t.MoveNext();
    EXPECT_EQ(t.Fields("s").texto(), "açafrão");
    t.Edit();
    t.Fields("s") = nullptr;
    t.Fields("n") = -5;
    t.Update();
    for (int i = 0; i < 2; ++i) t.MoveNext();
    EXPECT_TRUE(t.EOF());
    EXPECT_THROW(t.Fields("n"), ErroBanco);
    t.MoveFirst();
    EXPECT_TRUE(t.Fields("s").nulo());
    EXPECT_THROW(t.Fields("falta"), ErroBanco);
    EXPECT_EQ(gravado(), "-5 20\n");
    EXPECT_THROW(banco.OpenRecordset("falta"), ErroBanco);
    for (const char* nao_ha : {"\\falta.mdb", "\\..\\prova.mdb"}) EXPECT_THROW(area.OpenDatabase(nao_ha), ErroBanco);
}

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
        confirma ? fora.confirma() : EXPECT_THROW(fora.confirma(), ErroBanco);
    }
    EXPECT_EQ(gravado(), "1 2\n");
    EXPECT_THROW(area.CommitTrans(), ErroBanco);
    EXPECT_THROW(area.Rollback(), ErroBanco);
    area.BeginTrans();
    junta(5);
    area.Close();
    EXPECT_EQ(gravado(), "1 2\n");
    junta(6);
    EXPECT_EQ(gravado(), "1 2 6\n");
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
    EXPECT_THROW(area.OpenDatabase("\\prova.mdb").executa("DELETE FROM t"), ErroBanco);
    EXPECT_THROW(passo.confirma(), ErroBanco);
    EXPECT_EQ(gravado(), "1\n");
    junta(4);
    EXPECT_EQ(gravado(), "1 4\n");
}

} // namespace verdalia
