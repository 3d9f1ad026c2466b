// Os sons construídos, ouvidos por medidas: estão todos lá, no tamanho e no volume certos, sem estalo.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <regex>
#include <set>
#include <sstream>

#include "platform/base/arquivo.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

const fs::path projeto = VERDALIA_PROJETO, programa = VERDALIA_PROGRAMA;
constexpr std::array sotaques = {"correto", "caipira", "ingles"};
constexpr std::size_t maximo = 1 << 24; // de um arquivo lido

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
    return double(som.size()) / 22050;
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

// Os nomes de uma tabela de sons.
std::vector<std::string> le_nomes(const fs::path& tabela) {
    std::vector<std::string> nomes;
    std::istringstream texto(le_arquivo(tabela, maximo));
    for (std::string linha; std::getline(texto, linha);)
        if (!linha.empty() && linha[0] != '#') nomes.push_back(linha.substr(0, linha.find('\t')));
    return nomes;
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
    for (const std::string& nome : pedidos)
        for (const char* sotaque : sotaques)
            EXPECT_TRUE(fs::exists(programa / "audio" / sotaque / nome) || fs::exists(programa / nome)) << nome;
}

TEST(Sons, CadaFalaTemOSeuTamanhoEOVolumeDeTodas) {
    for (const char* sotaque : sotaques) {
        std::set<Amostras> ouvidas;
        for (const std::string& nome : le_nomes(projeto / "audio/falas" / (std::string(sotaque) + ".tsv"))) {
            SCOPED_TRACE(std::string(sotaque) + "/" + nome);
            const Amostras som = le_wav(programa / "audio" / sotaque / (nome + ".wav"));
            // O pregão seguinte vem em 2,5 s e cortaria o anterior.
            const bool eh_pregao = nome.find("-vz") != std::string::npos;
            EXPECT_TRUE(segundos(som) > 0.4 && segundos(som) < (eh_pregao ? 2.5 : 4));
            EXPECT_LT(pico(som), -1);
            EXPECT_NEAR(volume(som), -19.5, 2);
            for (const double ponta : {som.front(), som.back()}) EXPECT_LT(em_db(std::abs(ponta)), -60); // sem estalo
            EXPECT_TRUE(ouvidas.insert(som).second) << "o mesmo som que outra fala";
        }
        EXPECT_EQ(ouvidas.size(), 80U);
    }
}

TEST(Sons, ATrilhaDuraAApresentacaoESomeNoFim) {
    for (const char* nome : {"hortafim", "agendfim", "semefim", "feirafim", "htfimc", "agfimc", "sefimc", "fefimc",
                             "htfimi", "agfimi", "seimi", "fefimi"}) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (std::string(nome) + ".wav"));
        EXPECT_TRUE(std::abs(segundos(som) - 12) < 0.1 && pico(som) < -1);
        EXPECT_NEAR(volume(som), -22, 2);
        EXPECT_LT(pico(Amostras(som.end() - 2205, som.end())), -30);
    }
}

} // namespace
} // namespace verdalia
