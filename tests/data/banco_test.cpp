#include "data/banco.h"

#include "apoio.h"
#include "flow/calendario.h"
#include "platform/base/disco_de_teste.h"

#include <sqlite3.h>

namespace verdalia {

namespace fs = std::filesystem;

struct Banco : Partida {
    fs::path arquivo = jogador / "hortas00.mdb";

    // A horta inteira e a data num texto só, para comparar.
    static std::string horta() {
        std::string texto;
        for (int i = 0; i < n_canteiros; ++i)
            for (const int v : {st_cod_cult[i], st_idade[i], st_check[i], st_last_i_cu[i], st_last_last_i_cu[i]})
                texto += std::to_string(v) + ",";
        for (int i = 0; i < n_leiras; ++i)
            for (const int v : {sem_cod_cult[i], sem_idade[i], sem_check[i]}) texto += std::to_string(v) + ";";
        for (const int v : seq_pedido) texto += std::to_string(v) + " ";
        return texto;
    }

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
            const auto c = static_cast<std::int16_t>((i + salto) % 8 - 1);
            semeia(i, c > 6 ? cult_vago : c, c > 0 ? static_cast<std::int16_t>(i % (ciclo_sem[c] + 1)) : 0);
            sem_check[i] = c > 0 && i % 2 == 0 ? -1 : 0;
        }
        seq_pedido.fill(0);
        for (std::int16_t c = 1; c <= n_culturas; c += 2) seq_pedido[c] = static_cast<std::int16_t>((c + salto) % 3);
    }

    void executa(const std::string& sql) const {
        sqlite3* banco = nullptr;
        ASSERT_EQ(sqlite3_open(arquivo.c_str(), &banco), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(banco, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(banco);
        sqlite3_close(banco);
    }

    Arquivos na_pasta() const {
        Arquivos lista;
        for (const auto& item : fs::directory_iterator(jogador))
            lista[item.path().filename().string()] = conteudo(item.path());
        return lista;
    }
};

TEST_F(Banco, ArquivoNovo) {
    prepara_banco();
    EXPECT_TRUE(avisos_do_banco.empty());
    EXPECT_EQ(le_data_semana(), dia(2026, 3, 4));
    unidade_cd = 3;
    le_cd();
    EXPECT_EQ(unidade_cd, 0);
    EXPECT_FALSE(le_canteiros());
    EXPECT_EQ(st_cod_cult[99], cult_nenhuma);
    Database banco = DBEngine.Workspaces(0).OpenDatabase(nome_banco);
    EXPECT_EQ(banco.numero("SELECT count(*) FROM seq WHERE seq = 0"), 21);
    EXPECT_EQ(banco.campos("mapa_horta").size(), 41U);
    EXPECT_EQ(banco.campos("relat").size(), 7U);
    EXPECT_EQ(banco.campos("rr").size(), 5U);
    EXPECT_EQ(na_pasta().count("hortas00.mdb.novo"), 0U);
}

TEST_F(Banco, OQueSeGravaVolta) {
    prepara_banco();
    for (int salto = 0; salto < 23; ++salto) {
        enche(salto);
        const Dia quando = dia(2026, 3, 1) + std::chrono::days{salto};
        const std::string esperado = horta() + texto_iso(quando);
        grava_semana(quando);
        ASSERT_EQ(guardada(), esperado) << salto;
    }
    planta(5, cult_vago, 0);
    unidade_cd = 4;
    grava_canteiros();
    grava_cd();
    unidade_cd = 0;
    le_cd();
    EXPECT_EQ(unidade_cd, 4);
    EXPECT_TRUE(le_canteiros());
    EXPECT_EQ(st_nome[5], "Vago");
    EXPECT_TRUE(avisos_do_banco.empty());
    st_cod_cult.fill(cult_vago);
    sem_cod_cult.fill(cult_vago);
    for (auto* t : {&st_idade, &st_check}) t->fill(0);
    for (auto* t : {&sem_idade, &sem_check}) t->fill(0);
    grava_canteiros();
    EXPECT_FALSE(le_canteiros());
}

TEST_F(Banco, NaPrevisaoGravaAVerdadeira) {
    prepara_banco();
    enche(1);
    const std::string esperado = horta();
    avanca_previsao();
    avanca_previsao();
    ASSERT_NE(horta(), esperado);
    grava_canteiros();
    volta_ao_tempo_real();
    EXPECT_EQ(guardada(), esperado + "2026-03-04");
}

TEST_F(Banco, RegistroEstranhoFicaDeForaEORestoEntra) {
    prepara_banco();
    const std::vector<std::string> ruins = {
        "st VALUES (0,99,0,0,-1,-1)",
        "st VALUES (0,1,8,0,-1,-1)",
        "st VALUES (0,0,1,0,-1,-1)",
        "st VALUES (250,1,0,0,-1,-1)",
        "st VALUES (-1,1,0,0,-1,-1)",
        "st VALUES (NULL,1,0,0,-1,-1)",
        "st VALUES (0,NULL,0,0,-1,-1)",
        "st VALUES (0,1,NULL,0,-1,-1)",
        "st VALUES (0,1,0,NULL,-1,-1)",
        "st VALUES (0,1,0,7,-1,-1)",
        "st VALUES (0,1,0,0,0,-1)",
        "st VALUES (0,1,0,0,-1,22)",
        "st VALUES ('x',1,0,0,-1,-1)",
        "st VALUES (0,1.5,0,0,-1,-1)",
        "st VALUES (0,1,x'00',0,-1,-1)",
        "st VALUES (0,-1,0,0,-1,-1)",
        "st VALUES (4294967296,1,0,0,-1,-1)",
        "st VALUES (7,2,1,0,-1,-1)",
        "sem VALUES (0,7,0,0)",
        "sem VALUES (0,1,5,0)",
        "sem VALUES (22,1,0,0)",
        "sem VALUES (3,1,0,0)",
        "seq VALUES (0,1)",
        "seq VALUES (22,1)",
        "seq VALUES (2,-1)",
        "seq VALUES (1,1)",
        "seq VALUES (9,14)",
    };
    for (const std::string& ruim : ruins) {
        SCOPED_TRACE(ruim);
        avisos_do_banco.clear();
        executa("DELETE FROM st; DELETE FROM sem; DELETE FROM seq;"
                "INSERT INTO st VALUES (7,1,7,-1,NULL,21); INSERT INTO sem VALUES (3,1,4,-1);"
                "INSERT INTO seq VALUES (1,2); INSERT INTO " +
                ruim +
                ";"
                "INSERT INTO st VALUES (99,0,0,0,3,NULL); INSERT INTO seq VALUES (21,1);");
        std::fill(seq_pedido.begin(), seq_pedido.end(), std::int16_t{0});
        EXPECT_TRUE(le_canteiros());
        le_pedido();
        EXPECT_EQ(avisos_do_banco.size(), 1U);
        EXPECT_EQ(st_cod_cult[0], cult_nenhuma);
        EXPECT_EQ(st_cod_cult[7], cult_alface);
        EXPECT_EQ(st_idade[7], 7);
        EXPECT_EQ(st_check[7], -1);
        EXPECT_EQ(st_last_i_cu[7], cult_nenhuma);
        EXPECT_EQ(st_last_last_i_cu[7], cult_pepino);
        EXPECT_EQ(st_last_i_cu[99], cult_quiabo - 4);
        EXPECT_EQ(sem_cod_cult[0], cult_nenhuma);
        EXPECT_EQ(sem_idade[3], 4);
        EXPECT_EQ(seq_pedido[1], 2);
        EXPECT_EQ(seq_pedido[2], 0);
        EXPECT_EQ(seq_pedido[9], 0);
        EXPECT_EQ(seq_pedido[21], 1);
    }
}

TEST_F(Banco, ArquivoRuimEPostoDeLado) {
    prepara_banco();
    enche(2);
    grava_semana(dia(2026, 3, 3));
    const std::string bom = conteudo(arquivo);
    std::string remexido = bom;
    for (std::size_t i = 4096; i < remexido.size(); i += 7) remexido[i] = static_cast<char>(~remexido[i]);

    std::string so_leitura = bom, esquema = bom;
    so_leitura[18] = 9;
    esquema[47] = 9;

    const std::vector<std::pair<std::string, std::string>> casos = {
        {"", "danificado"},
        {"não é um banco", "danificado"},
        {std::string(20000, '\0'), "danificado"},
        {bom.substr(0, 300), "danificado"},
        {bom.substr(0, bom.size() / 2), "danificado"},
        {bom.substr(0, bom.size() - 4096), "danificado"},
        {remexido, "danificado"},
        {so_leitura, "danificado"},
        {esquema, "danificado"},
        {"PRAGMA user_version = 2", "mais nova"},
        {"PRAGMA application_id = 7", "não é deste jogo"},
        {"DROP TABLE rr", "danificado"},
        {"ALTER TABLE st DROP COLUMN \"check\"", "danificado"},
        {"DROP TABLE st; CREATE VIEW st AS SELECT indice, 1 cod_cult, 0 idade, 0 \"check\", -1 last_i_cu, "
         "-1 last_last_i_cu FROM sem",
         "danificado"},
    };
    std::size_t vez = 0;
    for (const auto& [que, motivo] : casos) {
        SCOPED_TRACE(que.substr(0, 60));
        const bool comando = que.starts_with("PRAGMA") || que.starts_with("DROP") || que.starts_with("ALTER");
        escreve(arquivo, comando ? bom : que);
        if (comando) executa(que);
        const std::string antes = conteudo(arquivo);
        escreve(jogador / "hortas00.mdb-journal", ""); // como o deixa uma gravação terminada
        avisos_do_banco.clear();
        prepara_banco();
        ASSERT_EQ(avisos_do_banco.size(), 1U);
        EXPECT_NE(avisos_do_banco[0].find(motivo), std::string::npos) << avisos_do_banco[0];
        const std::string numero = ++vez == 1 ? "" : " (" + std::to_string(vez) + ")";
        const std::string guardado = "hortas00 2026-03-04" + numero + ".mdb";
        EXPECT_NE(avisos_do_banco[0].find("\"" + guardado + "\""), std::string::npos) << avisos_do_banco[0];
        EXPECT_EQ(conteudo(jogador / guardado), antes);
        EXPECT_FALSE(le_canteiros());
        prepara_banco(); // o novo está bom
        EXPECT_EQ(avisos_do_banco.size(), 1U);
    }
}

TEST_F(Banco, DiarioOrfaoNaoEstragaOBancoNovo) {
    escreve(jogador / "hortas00.mdb-journal",
            std::string("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8) + std::string(5000, 'x'));
    prepara_banco();
    EXPECT_TRUE(avisos_do_banco.empty());
    EXPECT_TRUE(fs::exists(jogador / "hortas00 2026-03-04.mdb-journal"));
    prepara_banco();
    EXPECT_TRUE(avisos_do_banco.empty());
    EXPECT_FALSE(le_canteiros());
}

TEST_F(Banco, SemanaQueFaltaEReposta) {
    prepara_banco();
    for (const char* estrago :
         {"DELETE FROM semana", "UPDATE semana SET data = '2026-02-30', cd = 9", "UPDATE semana SET data = NULL",
          "UPDATE semana SET cd = 6", "UPDATE semana SET cd = 'C'"}) {
        SCOPED_TRACE(estrago);
        executa(estrago);
        avisos_do_banco.clear();
        prepara_banco();
        EXPECT_EQ(avisos_do_banco.size(), 1U);
        EXPECT_EQ(le_data_semana(), dia(2026, 3, 4));
        unidade_cd = 5;
        le_cd();
        EXPECT_EQ(unidade_cd, 0);
        prepara_banco();
        EXPECT_EQ(avisos_do_banco.size(), 1U);
    }
}

TEST_F(Banco, ErroDoSistemaNaoMexeEmNada) {
    fs::create_directories(arquivo); // uma pasta no lugar do arquivo
    EXPECT_THROW(prepara_banco(), ErroBanco);
    EXPECT_TRUE(fs::is_directory(arquivo));
    fs::remove(arquivo);
    prepara_banco();

    const auto prepara_falha = [](const std::string& motivo) {
        try {
            prepara_banco();
            ADD_FAILURE() << motivo;
        } catch (const ErroBanco& erro) {
            EXPECT_NE(std::string(erro.what()).find(motivo), std::string::npos) << erro.what();
        }
    };
    sqlite3* outro = nullptr; // outro programa está gravando
    sqlite3_open(arquivo.c_str(), &outro);
    sqlite3_exec(outro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    prepara_falha("em uso por outro programa");
    sqlite3_close(outro);
    {
        DiscoDeTeste disco;
        disco.so_leitura = true;
        prepara_falha("só pode ser lido");
    }
    EXPECT_EQ(na_pasta().size(), 1U);
    EXPECT_TRUE(avisos_do_banco.empty());
    prepara_banco();
}

// ---- Disco cheio e falta de luz

TEST_F(Banco, DiscoCheioDeixaOQueHavia) {
    prepara_banco();
    enche(3);
    grava_semana(dia(2026, 3, 3));
    const std::string antes = guardada();
    enche(10);
    const std::string nova = horta();
    int escritas = 0;
    for (int falha = 0; falha == 0 || falha < escritas; ++falha) {
        SCOPED_TRACE(falha);
        DiscoDeTeste disco;
        disco.codigo_falha = SQLITE_FULL;
        disco.falha_em = falha;
        enche(10);
        try {
            grava_semana(dia(2026, 3, 4));
            ADD_FAILURE();
        } catch (const ErroBanco& erro) {
            EXPECT_NE(std::string(erro.what()).find("disco está cheio"), std::string::npos) << erro.what();
        }
        EXPECT_EQ(horta(), nova); // a memória não se perde
        disco.falha_em = -1;
        EXPECT_EQ(guardada(), antes);
        if (falha > 0) continue;
        disco.escritas = 0; // quantas são ao todo, numa gravação que dá certo
        enche(10);
        grava_semana(dia(2026, 3, 4));
        escritas = disco.escritas;
        EXPECT_EQ(guardada(), nova + "2026-03-04");
        enche(3);
        grava_semana(dia(2026, 3, 3));
    }
    EXPECT_GT(escritas, 5);
}

TEST_F(Banco, DiscoCheioAoPorDeLado) {
    escreve(arquivo, "estragado");
    DiscoDeTeste disco;
    disco.codigo_falha = SQLITE_FULL;
    disco.falha_em = 3;
    EXPECT_THROW(prepara_banco(), ErroBanco);
    EXPECT_EQ(conteudo(arquivo), "estragado");
    EXPECT_TRUE(avisos_do_banco.empty());
    disco.falha_em = -1;
    prepara_banco();
    EXPECT_EQ(avisos_do_banco.size(), 1U);
    EXPECT_EQ(conteudo(jogador / "hortas00 2026-03-04.mdb"), "estragado");
}

TEST_F(Banco, FaltaDeLuzEmCadaGravacao) {
    prepara_banco();
    enche(3);
    grava_semana(dia(2026, 3, 3));
    const Arquivos antes = na_pasta();
    const std::string velha = guardada();
    std::vector<Gravacao> diario;
    enche(10);
    const std::string nova = horta() + "2026-03-04";
    {
        DiscoDeTeste disco;
        grava_semana(dia(2026, 3, 4));
        diario = disco.diario;
    }
    std::mt19937 sorte(1);
    int velhas = 0, novas = 0;
    for (std::size_t ate = 0; ate <= diario.size(); ++ate)
        for (int vez = 0; vez < 6; ++vez) {
            SCOPED_TRACE(std::to_string(ate) + " de " + std::to_string(diario.size()) + ", " + std::to_string(vez));
            const Perda perda = vez == 0 ? Perda::nenhuma : vez == 1 ? Perda::tudo : Perda::ao_acaso;
            fs::remove_all(jogador);
            for (const auto& [nome, bytes] : apos_queda(antes, diario, ate, perda, sorte))
                escreve(jogador / nome, bytes);
            prepara_banco();
            ASSERT_TRUE(avisos_do_banco.empty()) << avisos_do_banco[0];
            const std::string achada = guardada();
            ASSERT_TRUE(achada == velha || achada == nova) << "nem a velha nem a nova";
            ++(achada == velha ? velhas : novas);
            ASSERT_TRUE(ate < diario.size() || achada == nova) << "já estava confirmada";
        }
    EXPECT_GT(velhas, 10);
    EXPECT_GT(novas, 5);
}

} // namespace verdalia
