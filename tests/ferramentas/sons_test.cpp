// Os sons construídos, ouvidos por medidas: estão todos lá, no tamanho e no volume certos, sem estalo, e fazem-se
// iguais de novo.
// iguais de novo.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "platform/base/arquivo.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

const fs::path projeto = VERDALIA_PROJETO, programa = VERDALIA_PROGRAMA;
constexpr std::array sotaques = {"correto", "caipira", "ingles"};
constexpr double taxa = 22050;
constexpr std::size_t maximo = 1 << 24; // de um arquivo lido

// Os nomes das verduras, que se ouvem a cada arraste, são mais curtos que as frases.
const std::set<std::string> nomes = {"alface",   "chicoria", "cheiro",   "agriao", "couve",    "espinafr", "quiabo",
                                     "rucula",   "cenoura",  "beterrab", "nabo",   "rabanete", "tomate",   "pimentao",
                                     "beringel", "repolho",  "brocolis", "cflor",  "vagem",    "pepino",   "alho"};

using Amostras = std::vector<double>; // de -1 a 1

// O WAV como o programa o espera; qualquer outro formato é um defeito.
Amostras le_wav(const fs::path& arquivo) {
    const std::string b = le_arquivo(arquivo, maximo);
    const auto numero = [&b](std::size_t lugar, int bytes) {
        std::uint32_t n = 0;
        for (int i = bytes; i-- > 0;) n = n << 8 | static_cast<unsigned char>(b.at(lugar + std::size_t(i)));
        return n;
    };
    if (b.substr(0, 4) != "RIFF" || b.substr(8, 8) != "WAVEfmt " || numero(20, 2) != 1 || numero(22, 2) != 1 ||
        numero(24, 4) != 22050 || numero(34, 2) != 16 || b.substr(36, 4) != "data" || 44 + numero(40, 4) != b.size())
        throw std::runtime_error(arquivo.string() + " não é WAV de 22050 Hz, mono, 16 bits");
    Amostras som;
    for (std::size_t i = 44; i < b.size(); i += 2) som.push_back(std::int16_t(numero(i, 2)) / 32768.0);
    return som;
}

double em_db(double fracao) {
    return 20 * std::log10(std::max(fracao, 1e-9));
}

double segundos(const Amostras& som) {
    return double(som.size()) / taxa;
}

double pico(const Amostras& som) {
    double maior = 0;
    for (const double a : som) maior = std::max(maior, std::abs(a));
    return em_db(maior);
}

double volume(const Amostras& som) {
    double soma = 0;
    for (const double a : som) soma += a * a;
    return em_db(std::sqrt(soma / double(som.size())));
}

// As linhas de uma tabela de sons: o nome e o resto, campo a campo.
std::map<std::string, std::vector<std::string>> le_tabela(const fs::path& tabela) {
    std::map<std::string, std::vector<std::string>> linhas;
    std::istringstream texto(le_arquivo(tabela, maximo));
    for (std::string linha; std::getline(texto, linha);) {
        if (linha.empty() || linha[0] == '#') continue;
        std::istringstream resto(linha);
        std::string nome, campo;
        std::getline(resto, nome, '\t');
        std::vector<std::string> campos;
        while (std::getline(resto, campo, '\t')) campos.push_back(campo);
        EXPECT_TRUE(linhas.emplace(nome, campos).second) << tabela << ": " << nome << " repetido";
    }
    return linhas;
}

fs::path clipe(const std::string& sotaque, const std::string& nome) {
    return programa / "audio" / sotaque / (nome + ".wav");
}

TEST(Sons, OQueOProgramaTocaExisteEmTodosOsSotaques) {
    std::set<std::string> pedidos;
    const std::regex nome_de_som("\"(?:\\\\\\\\)?([\\w-]+\\.wav)\"");
    for (const auto& fonte : fs::recursive_directory_iterator(projeto / "src")) {
        if (!fonte.is_regular_file()) continue;
        const std::string texto = le_arquivo(fonte.path(), maximo);
        for (std::sregex_iterator i(texto.begin(), texto.end(), nome_de_som), fim; i != fim; ++i)
            pedidos.insert((*i)[1]);
    }
    EXPECT_GT(pedidos.size(), 60U);
    for (const std::string& nome : pedidos) {
        const bool de_todos = std::all_of(sotaques.begin(), sotaques.end(), [&nome](const char* sotaque) {
            return fs::exists(programa / "audio" / sotaque / nome);
        });
        EXPECT_TRUE(de_todos || fs::exists(programa / nome)) << nome;
    }
    for (const char* sotaque : sotaques) {
        const auto falas = le_tabela(projeto / "audio/falas" / (std::string(sotaque) + ".tsv"));
        EXPECT_EQ(falas.size(), 80U) << sotaque;
        for (const auto& [nome, campos] : falas) EXPECT_TRUE(fs::exists(clipe(sotaque, nome))) << sotaque << nome;
        for (const std::string& nome : nomes) EXPECT_TRUE(falas.count(nome)) << sotaque << nome;
    }
}

TEST(Sons, CadaFalaTemOSeuTamanhoEOVolumeDeTodas) {
    for (const char* sotaque : sotaques) {
        std::set<Amostras> ouvidas;
        for (const auto& [nome, campos] : le_tabela(projeto / "audio/falas" / (std::string(sotaque) + ".tsv"))) {
            SCOPED_TRACE(std::string(sotaque) + "/" + nome + ": " + campos.back());
            const Amostras som = le_wav(clipe(sotaque, nome));
            // O pregão seguinte vem em 2,5 s e cortaria o anterior.
            const bool eh_pregao = nome.find("-vz") != std::string::npos;
            EXPECT_LT(segundos(som), nomes.count(nome) ? 1.5 : eh_pregao ? 2.5 : 4);
            EXPECT_GT(segundos(som), 0.4);
            EXPECT_LT(pico(som), -1);
            EXPECT_NEAR(volume(som), -19.5, 2);
            for (const double ponta : {som.front(), som.back()}) EXPECT_LT(em_db(std::abs(ponta)), -60); // sem estalo
            EXPECT_TRUE(ouvidas.insert(som).second) << "o mesmo som que outra fala";
        }
    }
}

TEST(Sons, ATrilhaDuraAApresentacaoESomeNoFimEOsEfeitosSaoCurtos) {
    for (const char* nome : {"hortafim", "agendfim", "semefim", "feirafim", "htfimc", "agfimc", "sefimc", "fefimc",
                             "htfimi", "agfimi", "seimi", "fefimi"}) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (std::string(nome) + ".wav"));
        EXPECT_NEAR(segundos(som), 12, 0.1);
        EXPECT_LT(pico(som), -1);
        EXPECT_NEAR(volume(som), -22, 2);
        EXPECT_LT(pico(Amostras(som.end() - 2205, som.end())), -30);
    }
    const std::map<std::string, double> maior_duracao = {{"blip", 0.15}, {"silencio", 0.15}, {"voup", 0.6},
                                                         {"tzip", 0.4},  {"quickly", 0.3},   {"oia", 1.2}};
    EXPECT_EQ(le_tabela(projeto / "audio/efeitos.tsv").size(), maior_duracao.size());
    for (const auto& [nome, dura] : maior_duracao) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (nome + ".wav"));
        EXPECT_LT(segundos(som), dura);
        EXPECT_LT(em_db(std::abs(som.back())), -50);
        EXPECT_EQ(pico(som) > -12, nome != "silencio") << pico(som);
        EXPECT_TRUE(pico(som) < -1);
    }
}

TEST(Sons, FeitosDeNovoSaoOsMesmosBytes) {
    std::string modelo = fs::temp_directory_path() / "sons-XXXXXX";
    const fs::path pasta = mkdtemp(modelo.data());
    const auto faz_de_novo = [&pasta](const std::string& tipo, const std::string& nome, const std::string& resto) {
        const std::string destino = pasta / nome;
        fs::create_directories(fs::path(destino).parent_path());
        const std::string comando = (projeto / "ferramentas/som").string() + " " + tipo + " " + destino + " " + resto;
        EXPECT_EQ(std::system(comando.c_str()), 0) << comando;
        EXPECT_TRUE(le_arquivo(destino, maximo) == le_arquivo(programa / nome, maximo)) << nome;
    };
    for (const std::string sotaque : {"caipira", "ingles"}) {
        const auto f = le_tabela(projeto / "audio/falas" / (sotaque + ".tsv"))["alf-vz"];
        faz_de_novo("fala", "audio/" + sotaque + "/alf-vz.wav",
                    sotaque + " " + f.at(0) + " " + f.at(1) + " \"" + f.at(2) + "\"");
    }
    faz_de_novo("efeito", "voup.wav", "\"" + le_tabela(projeto / "audio/efeitos.tsv")["voup"].at(0) + "\"");
    faz_de_novo("trilha", "fefimc.wav", projeto / "audio/trilhas/fefimc.abc");
    fs::remove_all(pasta);
}

} // namespace
} // namespace verdalia
