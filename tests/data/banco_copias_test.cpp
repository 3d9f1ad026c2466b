// As cópias semanais do banco, e bancos de toda espécie.
#include "apoio.h"
#include "data/invariantes.h"
#include "flow/regras/calendario.h"

#include <random>

namespace verdalia {

namespace fs = std::filesystem;

struct Copias : Partida {
    Copias() { prepara_banco(); }

    // Uma semana jogada: um canteiro plantado a mais, a gravação e a cópia.
    static void joga_semana(Dia quando) {
        planta(n++, cult_nabo, 0);
        grava_semana(quando);
        guarda_copia();
    }
    auto quantas() const {
        return std::count_if(fs::directory_iterator(jogador), fs::directory_iterator(),
                             [](auto& item) { return item.path().string().find(" semana ") != std::string::npos; });
    }
    fs::path copia(const char* domingo) const { return jogador / (std::string("hortas00 semana ") + domingo + ".mdb"); }
    static auto plantados() {
        le_canteiros();
        return std::count(st_cod_cult.begin(), st_cod_cult.end(), cult_nabo);
    }
    // Prepara o banco com essa resposta; devolve o que se perguntou.
    static std::string prepara(bool resposta) {
        std::string perguntas;
        avisos_do_banco.clear();
        prepara_banco([&](const std::string& pergunta) {
            perguntas += pergunta + "\n";
            return resposta;
        });
        return perguntas;
    }

    static inline int n;
};

TEST_F(Copias, FicamAsDasUltimasOitoSemanasJogadasENuncaUmaPrevisao) {
    n = 0;
    for (int semana = 0; semana < 10; ++semana) // uma partida na segunda, outra no sábado
        for (const int depois : {1, 6}) joga_semana(dia(2025, 12, 7) + std::chrono::days{7 * semana + depois});
    EXPECT_EQ(quantas(), 8);
    EXPECT_FALSE(fs::exists(copia("2025-12-14")));
    EXPECT_EQ(consulta(copia("2025-12-21"), "SELECT data, count(*) FROM semana, st"), "2025-12-27|6\n");
    // Com o relógio atrasado a de agora fica, embora pareça a mais velha; a previsão não vai para a cópia.
    avanca_previsao();
    joga_semana(dia(2020, 2, 29));
    volta_ao_tempo_real();
    EXPECT_EQ(quantas(), 8);
    EXPECT_EQ(consulta(copia("2020-02-23"), "SELECT count(*), max(idade) FROM st"), "20|0\n");
}

TEST_F(Copias, ACopiaMaisNovaQueServeTomaOLugarDoBancoPerdido) {
    n = 0;
    joga_semana(dia(2026, 2, 20));
    joga_semana(dia(2026, 2, 28));
    joga_semana(dia(2026, 3, 3));
    escreve(copia("2026-03-01"), "estragada");
    escreve(arquivo, "estragado");
    EXPECT_EQ(prepara(true), "O arquivo da horta, \"hortas00.mdb\", está danificado. Há uma cópia da horta como estava "
                             "em 28/2/2026. Deseja continuar com ela ?\n");
    EXPECT_EQ(plantados(), 2);
    EXPECT_EQ(le_data_semana(), dia(2026, 2, 28));
    ASSERT_EQ(avisos_do_banco.size(), 1U);
    EXPECT_NE(avisos_do_banco[0].find("\"hortas00 2026-03-04.mdb\" e a cópia tomou o lugar"), std::string::npos);
    EXPECT_EQ(conteudo(jogador / "hortas00 2026-03-04.mdb"), "estragado");
    EXPECT_EQ(conteudo(jogador / "hortas00 semana 2026-03-01 2026-03-04.mdb"), "estragada");
    // Também do arquivo que sumiu, ou que virou uma pasta, há cópia.
    fs::remove(arquivo);
    EXPECT_NE(prepara(true).find("não foi encontrado. Há uma cópia"), std::string::npos);
    fs::remove(arquivo);
    fs::create_directories(arquivo / "dentro");
    EXPECT_NE(prepara(true).find("é uma pasta, e não um arquivo."), std::string::npos);
    EXPECT_EQ(plantados(), 2);
    EXPECT_TRUE(fs::exists(jogador / "hortas00 2026-03-04 (2).mdb" / "dentro"));
}

TEST_F(Copias, QuemNaoQuerACopiaComecaDoNadaENadaSeApaga) {
    n = 0;
    joga_semana(dia(2026, 3, 3));
    const std::string boa = conteudo(copia("2026-03-01"));
    escreve(arquivo, "estragado");
    EXPECT_EQ(casa(prepara(false), "\n").size(), 1U);
    EXPECT_EQ(plantados(), 0);
    EXPECT_NE(avisos_do_banco.at(0).find("uma horta nova começa agora"), std::string::npos);
    // A horta nova faz as suas cópias sem tocar nas da que acabou, que já não são oferecidas.
    guarda_copia();
    EXPECT_EQ(conteudo(jogador / "hortas00 semana 2026-03-01 2026-03-04.mdb"), boa);
    EXPECT_TRUE(fs::exists(copia("2026-03-01")) && fs::exists(jogador / "hortas00 2026-03-04.mdb"));
}

// ---- Bancos de toda espécie

// Um valor para um campo inteiro: quase sempre plausível, às vezes hostil.
std::string valor_qualquer(std::mt19937& sorte, int maior) {
    constexpr const char* hostis[] = {"NULL", "-1",  "22",   "32768", "65537", "9223372036854775807",
                                      "1.5",  "'x'", "x'00'"};
    if (sorte() % 12 == 0) return hostis[sorte() % std::size(hostis)];
    return std::to_string(static_cast<int>(sorte() % static_cast<unsigned>(maior + 2)) - 1);
}

TEST_F(Copias, BancosGeradosAoAcasoCarregamEGuardamAsInvariantes) {
    const struct {
        const char* nome;
        int registros;
        std::vector<int> maiores; // por campo
    } tabelas[] = {{"st", 120, {99, 21, 8, 0, 21, 21}}, {"sem", 26, {21, 21, 4, 0}}, {"seq", 24, {21, 9}}};
    constexpr const char* datas[] = {"'2026-03-04'", "'1900-01-01'", "'9999-12-31'", "'2026-02-29'", "NULL", "7"};
    const std::string modelo = conteudo(arquivo);
    const int quantos = vezes(300, 10000);
    int de_lado = 0, plantadas = 0;
    for (int i = 0; i < quantos; ++i) {
        SCOPED_TRACE(i);
        std::mt19937 sorte(static_cast<unsigned>(i));
        fs::remove_all(jogador);
        escreve(arquivo, modelo);
        std::string sql =
            "PRAGMA synchronous=OFF; PRAGMA journal_mode=MEMORY; BEGIN; DELETE FROM seq; UPDATE semana SET data = ";
        sql.append(datas[sorte() % std::size(datas)]).append(", cd = ").append(valor_qualquer(sorte, 5)).append(";");
        for (const auto& t : tabelas) {
            std::string registros;
            for (unsigned r = sorte() % static_cast<unsigned>(t.registros); r > 0; --r) {
                registros += registros.empty() ? "(" : "),(";
                for (std::size_t c = 0; c < t.maiores.size(); ++c)
                    registros.append(c > 0 ? "," : "").append(valor_qualquer(sorte, t.maiores[c]));
            }
            if (!registros.empty())
                sql.append("INSERT INTO ").append(t.nome).append(" VALUES ").append(registros).append(");");
        }
        consulta(arquivo, sql + "COMMIT");
        if (i % 4 == 0) { // e alguns bytes trocados
            std::string bytes = conteudo(arquivo);
            for (unsigned b = 1 + sorte() % 20; b > 0; --b) bytes[sorte() % bytes.size()] = static_cast<char>(sorte());
            escreve(arquivo, bytes);
        }
        avisos_do_banco.clear();
        seq_pedido.fill(0);
        prepara_banco();
        de_lado += fs::exists(jogador / "hortas00 2026-03-04.mdb");
        plantadas += le_canteiros();
        le_pedido();
        le_cd();
        ASSERT_EQ(invariante_quebrado(), "");
        ASSERT_TRUE(unidade_cd >= 0 && unidade_cd <= 5);
        for (int s = std::min(20, semanas_ate(le_data_semana(), hoje())); s > 0; --s) {
            passa_semana();
            ASSERT_EQ(invariante_quebrado(), "");
        }
        const std::string ficou = sem_nomes();
        grava_semana(hoje());
        avisos_do_banco.clear();
        le_canteiros();
        le_pedido();
        ASSERT_TRUE(avisos_do_banco.empty());
        ASSERT_EQ(sem_nomes(), ficou);
    }
    EXPECT_TRUE(plantadas > quantos / 2 && de_lado > quantos / 100 && de_lado < quantos / 4);
}

} // namespace verdalia
