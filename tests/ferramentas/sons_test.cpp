// Os sons construídos, ouvidos por medidas: estão todos lá, no tamanho e no volume certos, sem estalo nem sobra de
// silêncio.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "ferramentas/arquivo.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

const fs::path projeto = VERDALIA_PROJETO, programa = VERDALIA_PROGRAMA;
constexpr std::array sotaques = {"correto", "caipira", "ingles"};
constexpr double taxa = 22050;

using Amostras = std::vector<double>; // de -1 a 1

// O WAV como o programa o espera; qualquer outro formato é um defeito.
Amostras le_wav(const fs::path& arquivo) {
    const std::string b = le_arquivo(arquivo);
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

// O volume do que soa, em dB: a média dos trechos de 50 ms que passam de -40.
double volume(const Amostras& som) {
    double soma = 0;
    int quantos = 0;
    for (std::size_t i = 0; i + 1102 <= som.size(); i += 1102) {
        double energia = 0;
        for (std::size_t j = i; j < i + 1102; ++j) energia += som[j] * som[j] / 1102;
        if (energia > 1e-4) soma += energia, ++quantos;
    }
    return em_db(std::sqrt(soma / std::max(quantos, 1)));
}

// Silêncio (abaixo de -50 dB) no começo e no fim, em ms.
std::array<double, 2> silencio_nas_pontas(const Amostras& som) {
    const auto soa = [](double a) { return em_db(std::abs(a)) > -50; };
    const auto primeira = std::find_if(som.begin(), som.end(), soa) - som.begin();
    const auto ultima = std::find_if(som.rbegin(), som.rend(), soa) - som.rbegin();
    return {double(primeira) * 1000 / taxa, double(ultima) * 1000 / taxa};
}

// A altura da voz, em Hz: o atraso, de 2,5 a 14 ms, com que o som mais se parece consigo mesmo.
double altura(const Amostras& som) {
    std::size_t melhor = 0;
    double maior = 0;
    for (std::size_t atraso = 55; atraso < 310; ++atraso) {
        double junto = 0;
        for (std::size_t i = 0; i + 310 < som.size(); ++i) junto += som[i] * som[i + atraso];
        if (junto > maior) maior = junto, melhor = atraso;
    }
    return melhor == 0 ? 0 : taxa / double(melhor);
}

// As linhas de uma tabela de sons: o nome e o resto, campo a campo.
std::map<std::string, std::vector<std::string>> le_tabela(const fs::path& tabela) {
    std::map<std::string, std::vector<std::string>> linhas;
    std::istringstream texto(le_arquivo(tabela));
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

bool eh_pregao(const std::string& nome) {
    return nome.find("-vz") != std::string::npos;
}

TEST(Sons, OQueOProgramaTocaExisteEmTodosOsSotaques) {
    std::set<std::string> pedidos;
    const std::regex nome_de_som("\"(?:\\\\\\\\)?([\\w-]+\\.wav)\"");
    for (const auto& fonte : fs::recursive_directory_iterator(projeto / "src")) {
        if (!fonte.is_regular_file()) continue;
        const std::string texto = le_arquivo(fonte.path());
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
    }
}

TEST(Sons, CadaFalaTemOSeuTamanhoEOVolumeDeTodas) {
    for (const char* sotaque : sotaques) {
        std::map<Amostras, std::string> ouvidas;
        for (const auto& [nome, campos] : le_tabela(projeto / "audio/falas" / (std::string(sotaque) + ".tsv"))) {
            SCOPED_TRACE(std::string(sotaque) + "/" + nome + ": " + campos.back());
            const Amostras som = le_wav(clipe(sotaque, nome));
            // O pregão seguinte vem em 2,5 s e cortaria o anterior.
            const bool uma_palavra = campos.back().find(' ') == std::string::npos; // que se ouve a cada arraste
            EXPECT_LT(segundos(som), uma_palavra ? 1.5 : eh_pregao(nome) ? 2.5 : 4);
            EXPECT_TRUE(segundos(som) > 0.4 && pico(som) < -1);
            EXPECT_NEAR(volume(som), -18.6, 2);
            for (const double ms : silencio_nas_pontas(som)) EXPECT_LT(ms, 150);
            for (const double ponta : {som.front(), som.back()}) EXPECT_LT(em_db(std::abs(ponta)), -60); // sem estalo
            const auto [outra, nova] = ouvidas.emplace(som, nome);
            EXPECT_TRUE(nova) << "o mesmo som que " << outra->second;
        }
    }
}

TEST(Sons, OHortelaoEAFeiranteSaoVozesDiferentes) {
    for (const char* sotaque : sotaques)
        for (const char* nome : {"l1", "vamhor", "s3", "alf-vz", "cen-vz", "tom-vz"}) {
            const double hz = altura(le_wav(clipe(sotaque, nome)));
            EXPECT_TRUE(eh_pregao(nome) ? hz > 165 && hz < 320 : hz > 75 && hz < 150) << sotaque << nome << hz;
        }
}

TEST(Sons, ATrilhaDuraAApresentacaoESomeNoFim) {
    for (const char* nome : {"hortafim", "agendfim", "semefim", "feirafim", "htfimc", "agfimc", "sefimc", "fefimc",
                             "htfimi", "agfimi", "seimi", "fefimi"}) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (std::string(nome) + ".wav"));
        EXPECT_NEAR(segundos(som), 12, 0.1);
        EXPECT_LT(pico(som), -1);
        EXPECT_NEAR(volume(som), -22, 1.6);
        for (const double ms : silencio_nas_pontas(som)) EXPECT_LT(ms, 150);
        EXPECT_LT(pico(Amostras(som.end() - 2205, som.end())), -30);
        EXPECT_GT(pico(Amostras(som.end() - 2 * 22050, som.end() - 22050)), -25); // há música até começar a sumir
    }
}

TEST(Sons, OsEfeitosSaoCurtosEOSilencioESilencio) {
    const std::map<std::string, double> maior_duracao = {{"blip", 0.15}, {"silencio", 0.15}, {"voup", 0.6},
                                                         {"tzip", 0.4},  {"quickly", 0.3},   {"oia", 1.2}};
    for (const auto& [nome, dura] : maior_duracao) {
        const Amostras som = le_wav(programa / (nome + ".wav"));
        EXPECT_LT(segundos(som), dura) << nome;
        EXPECT_LT(em_db(std::abs(som.back())), -50) << nome;
        EXPECT_TRUE(nome == "silencio" ? pico(som) < -100 : pico(som) > -12 && pico(som) < -1) << nome << pico(som);
    }
}

} // namespace
} // namespace verdalia
