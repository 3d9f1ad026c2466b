#include "data/banco.h"

#include "apoio.h"
#include "flow/regras/calendario.h"
#include "platform/base/disco_de_teste.h"

#include <set>
#include <sqlite3.h>

namespace verdalia {

namespace fs = std::filesystem;

struct Banco : Partida {
    static std::string guardada() {
        seq_pedido.fill(0);
        le_canteiros();
        le_pedido();
        return horta() + texto_iso(le_data_semana());
    }

    // Uma horta cheia, com um pouco de tudo; `salto` faz uma diferente da outra.
    static void enche(int salto) {
        for (std::int16_t i = 0; i < n_canteiros; ++i) {
            const auto c = static_cast<std::int16_t>((i + salto) % 23 - 1);
            planta(i, c, c > 0 ? static_cast<std::int16_t>(i % ciclo_horta[c]) : 0);
            st_check[i] = c > 0 && i % 2 == 0 ? -1 : 0;
            st_last_i_cu[i] = c >= 0 ? static_cast<std::int16_t>(i % 21 + 1) : cult_nenhuma;
            st_last_last_i_cu[i] = c >= 0 && i % 3 == 0 ? cult_pepino : cult_nenhuma;
        }
        for (std::int16_t i = 0; i < n_leiras; ++i) {
            const auto c = static_cast<std::int16_t>((i + salto) % 7 - 1);
            semeia(i, c, c > 0 ? static_cast<std::int16_t>(i % (ciclo_sem[c] + 1)) : 0);
            sem_check[i] = c > 0 && i % 2 == 0 ? -1 : 0;
        }
        for (std::int16_t c = 1; c <= n_culturas; ++c)
            seq_pedido[c] = c % 2 == 0 ? 0 : static_cast<std::int16_t>((c + salto) % 3);
    }

    void executa(const std::string& sql) const { consulta(arquivo, sql); }

    const fs::path copia = jogador / "hortas00 semana 2026-03-01.mdb";
    auto quantos_arquivos() const { return std::distance(fs::directory_iterator(jogador), fs::directory_iterator()); }

    // O motivo por que a operação falhou; "" quando deu certo.
    template <class F> static std::string erro(F operacao) {
        try {
            operacao();
            return "";
        } catch (const ErroBanco& falha) {
            return falha.what();
        }
    }
};

TEST_F(Banco, OQueSeGravaVolta) {
    prepara_banco();
    EXPECT_EQ(quantos_arquivos(), 1);
    EXPECT_FALSE(le_canteiros());
    EXPECT_EQ(le_data_semana(), dia(2026, 3, 4));
    unidade_cd = 4;
    grava_cd();
    for (int salto = 0; salto < 23; ++salto) {
        enche(salto);
        const Dia quando = dia(2026, 3, 1) + std::chrono::days{salto};
        const std::string esperado = horta() + texto_iso(quando);
        grava_semana(quando);
        ASSERT_EQ(guardada(), esperado) << salto;
    }
    unidade_cd = 0;
    le_cd();
    EXPECT_EQ(unidade_cd, 4);
    // Lugares vagos que nada lembram não fazem uma horta.
    esvazia();
    st_cod_cult.fill(cult_vago);
    grava_canteiros();
    EXPECT_FALSE(le_canteiros());
    EXPECT_TRUE(avisos_do_banco.empty());
}

TEST_F(Banco, RegistroEstranhoFicaDeForaEORestoEntra) {
    prepara_banco();
    const std::pair<const char*, std::vector<const char*>> ruins[] = {
        {"st",
         {"0,99,0,0,-1,-1", "0,1,8,0,-1,-1", "0,0,1,0,-1,-1", "0,-1,0,0,-1,-1", "250,1,0,0,-1,-1", "-1,1,0,0,-1,-1",
          "NULL,1,0,0,-1,-1", "0,NULL,0,0,-1,-1", "0,1,NULL,0,-1,-1", "0,1,0,NULL,-1,-1", "0,1,0,7,-1,-1",
          "'x',1,0,0,-1,-1", "0,1.5,0,0,-1,-1", "0,1,x'00',0,-1,-1", "4294967296,1,0,0,-1,-1", "7,2,1,0,-1,-1"}},
        {"sem", {"0,7,0,0", "0,1,5,0", "22,1,0,0", "3,1,0,0"}},
        {"seq", {"0,1", "22,1", "2,-1", "1,1", "9,14"}}};
    planta(7, cult_alface, 7);
    st_check[7] = -1;
    st_last_last_i_cu[7] = cult_pepino;
    planta(99, cult_vago, 0);
    st_last_i_cu[99] = cult_nabo;
    semeia(3, cult_alface, 4);
    sem_check[3] = -1;
    seq_pedido[1] = 2;
    seq_pedido[21] = 1;
    const auto area = std::exchange(area_maxima, 2 * area_unidade[1] + area_unidade[21]); // o que cabe justo, cabe
    const std::string boa = horta() + "2026-03-04";
    for (const auto& [tabela, valores] : ruins)
        for (const std::string ruim : valores) {
            SCOPED_TRACE(tabela + (" " + ruim));
            avisos_do_banco.clear();
            executa("DELETE FROM st; DELETE FROM sem; DELETE FROM seq; INSERT INTO st VALUES (7,1,7,-1,NULL,21);"
                    "INSERT INTO sem VALUES (3,1,4,-1); INSERT INTO seq VALUES (1,2);");
            executa(std::string("INSERT INTO ") + tabela + " VALUES (" + ruim + ")");
            executa("INSERT INTO st VALUES (99,0,0,0,11,NULL); INSERT INTO seq VALUES (21,1);");
            EXPECT_EQ(guardada(), boa);
            EXPECT_EQ(avisos_do_banco.size(), 1U);
        }
    area_maxima = area;
}

TEST_F(Banco, LembrancaEstranhaNaoCustaOCanteiroEOQueSePerderiaFicaCopiado) {
    prepara_banco();
    executa("INSERT INTO st VALUES (5,1,3,-1,0,9); INSERT INTO st VALUES (6,2,1,0,22,'x')");
    const std::string como_estava = conteudo(arquivo);
    le_canteiros();
    EXPECT_NE(horta().find("Alface,1,3,-1,-1,9;Chicória,2,1,0,-1,-1;"), std::string::npos) << horta();
    ASSERT_EQ(avisos_do_banco.size(), 1U);
    EXPECT_NE(avisos_do_banco[0].find("hortas00 2026-03-04.mdb"), std::string::npos) << avisos_do_banco[0];
    EXPECT_EQ(quantos_arquivos(), 1); // a cópia espera pela gravação
    for (int vez = 0; vez < 2; ++vez) grava_canteiros();
    EXPECT_EQ(conteudo(jogador / "hortas00 2026-03-04.mdb"), como_estava);
    EXPECT_FALSE(fs::exists(jogador / "hortas00 2026-03-04 (2).mdb"));
}

TEST_F(Banco, ArquivoRuimEPostoDeLado) {
    prepara_banco();
    enche(2);
    grava_semana(dia(2026, 3, 3));
    const std::string bom = conteudo(arquivo);
    std::string remexido = bom, so_leitura = bom, esquema = bom;
    for (std::size_t i = 4096; i < remexido.size(); i += 7) remexido[i] = static_cast<char>(~remexido[i]);
    so_leitura[18] = esquema[47] = 9;
    // Os bytes do arquivo, ou o que se faz num banco bom, e o que se diz dele.
    const struct {
        std::string bytes, sql;
        const char* motivo = "danificado";
    } casos[] = {
        {"", ""},
        {"não é um banco", ""},
        {bom.substr(0, bom.size() - 4096), ""},
        {remexido, ""},
        {so_leitura, ""},
        {esquema, ""},
        {bom, "PRAGMA user_version = 2", "mais nova"},
        {bom, "PRAGMA application_id = 7", "não é deste jogo"},
        {bom, "DROP TABLE rr"},
        {bom, "ALTER TABLE st DROP COLUMN \"check\""},
        {bom, "DROP TABLE st; CREATE VIEW st AS SELECT indice, 1 cod_cult, 0 idade, 0 \"check\", -1 last_i_cu, "
              "-1 last_last_i_cu FROM sem"},
    };
    int vez = 0;
    for (const auto& caso : casos) {
        SCOPED_TRACE(++vez);
        escreve(arquivo, caso.bytes);
        if (!caso.sql.empty()) executa(caso.sql);
        const std::string antes = conteudo(arquivo);
        escreve(jogador / "hortas00.mdb-journal", ""); // como o deixa uma gravação terminada
        avisos_do_banco.clear();
        for (int i = 0; i < 2; ++i) prepara_banco(); // na segunda, o novo está bom
        ASSERT_EQ(avisos_do_banco.size(), 1U);
        const std::string guardado =
            "hortas00 2026-03-04" + (vez == 1 ? "" : " (" + std::to_string(vez) + ")") + ".mdb";
        EXPECT_EQ(casa(avisos_do_banco[0], (caso.motivo + std::string(".*\"hortas00")).c_str()).size(), 1U);
        EXPECT_EQ(conteudo(jogador / guardado), antes);
        EXPECT_FALSE(le_canteiros());
    }
}

TEST_F(Banco, SemanaQueFaltaEReposta) {
    prepara_banco();
    for (const char* estrago : {"DELETE FROM semana", "UPDATE semana SET data = '2026-02-30', cd = 9",
                                "UPDATE semana SET data = NULL", "UPDATE semana SET cd = 6"}) {
        SCOPED_TRACE(estrago);
        executa(estrago);
        avisos_do_banco.clear();
        for (int vez = 0; vez < 2; ++vez) prepara_banco(); // avisa uma vez só
        EXPECT_EQ(avisos_do_banco.size(), 1U);
        EXPECT_EQ(le_data_semana(), dia(2026, 3, 4));
        unidade_cd = 5;
        le_cd();
        EXPECT_EQ(unidade_cd, 0);
    }
}

// Cada coisa que uma gravação pede ao sistema falha, uma vez ou daí em diante: a memória fica, o disco tem o de antes,
// e quando o disco volta grava-se. O que impede a cópia não impede a gravação, nem estraga a cópia que havia.
TEST_F(Banco, ErroEmCadaChamadaDeUmaGravacaoDeixaOQueHavia) {
    prepara_banco();
    enche(10);
    const std::string nova = horta() + "2026-03-04";
    enche(3);
    grava_semana(dia(2026, 3, 3));
    guarda_copia();
    const std::string antes = guardada(), bytes = conteudo(arquivo);
    for (const bool so_uma : {false, true}) {
        DiscoDeTeste disco;
        disco.toda_chamada = true;
        disco.codigo_falha = SQLITE_IOERR;
        disco.so_uma = so_uma;
        const auto grava = [&] {
            enche(10);
            const bool gravou = erro([] { grava_semana(dia(2026, 3, 4)); }).empty();
            if (gravou) guarda_copia();
            EXPECT_EQ(horta() + "2026-03-04", nova);
            return gravou;
        };
        const auto confere = [&](bool gravou) {
            const std::string ficou = guardada();
            ASSERT_TRUE(ficou == nova || (!gravou && ficou == antes));
            ASSERT_EQ(consulta(copia, "PRAGMA quick_check"), "ok\n");
            if (ficou == nova) escreve(arquivo, bytes);
        };
        EXPECT_GT(falha_em_cada_uma(disco, grava, confere), 40);
        EXPECT_EQ(consulta(copia, "SELECT data FROM semana"), "2026-03-04\n");
    }
    EXPECT_FALSE(fs::exists(copia.string() + ".novo"));
}

TEST_F(Banco, ErroAoTrocarUmBancoRuimPelaCopiaNaoPerdeNada) {
    prepara_banco();
    enche(3);
    grava_semana(dia(2026, 3, 3));
    const std::string boa = guardada();
    guarda_copia();
    const std::string bytes = conteudo(copia);
    DiscoDeTeste disco;
    disco.toda_chamada = true;
    disco.codigo_falha = SQLITE_IOERR;
    const auto troca = [&] {
        fs::remove_all(jogador);
        escreve(copia, bytes);
        escreve(arquivo, "estragado");
        avisos_do_banco.clear();
        return erro([] { prepara_banco([](const std::string&) { return true; }); }).empty();
    };
    const auto confere = [&](bool trocou) {
        std::set<std::string> ha;
        for (const auto& item : fs::directory_iterator(jogador)) ha.insert(conteudo(item.path()));
        EXPECT_TRUE(ha.contains("estragado") && ha.contains(bytes));
        const bool no_lugar = conteudo(arquivo) == "estragado";
        EXPECT_FALSE(trocou && no_lugar);
        EXPECT_EQ(avisos_do_banco.size(), no_lugar ? 0U : 1U);
    };
    EXPECT_GT(falha_em_cada_uma(disco, troca, confere), 40);
    EXPECT_EQ(guardada(), boa);
}

} // namespace verdalia
