// Os sons construídos, ouvidos por medidas: estão todos lá, no tamanho e no volume certos, sem estalo nem sobra de
// silêncio, e fazem-se iguais de novo.
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

Amostras filtra(const Amostras& som, std::array<double, 3> b, double a1, double a2) {
    Amostras sai;
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    for (const double x : som) {
        const double y = b[0] * x + b[1] * x1 + b[2] * x2 - a1 * y1 - a2 * y2;
        x2 = x1, x1 = x, y2 = y1, y1 = y;
        sai.push_back(y);
    }
    return sai;
}

// Volume percebido em LUFS (ITU-R BS.1770-4): a curva K, blocos de 400 ms a cada 100 e os dois cortes.
double volume_percebido(const Amostras& som) {
    const double k = std::tan(M_PI * 1681.974450955533 / taxa), q = 0.7071752369554196;
    const double alto = std::pow(10, 3.999843853973347 / 20), meio = std::pow(alto, 0.4996667741545416);
    const double a0 = 1 + k / q + k * k;
    Amostras pesado =
        filtra(som, {(alto + meio * k / q + k * k) / a0, 2 * (k * k - alto) / a0, (alto - meio * k / q + k * k) / a0},
               2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0);
    const double g = std::tan(M_PI * 38.13547087602444 / taxa), r = 0.5003270373238773, c0 = 1 + g / r + g * g;
    pesado = filtra(pesado, {1, -2, 1}, 2 * (g * g - 1) / c0, (1 - g / r + g * g) / c0);

    const std::size_t bloco = std::size_t(0.4 * taxa), passo = bloco / 4;
    std::vector<double> energias;
    for (std::size_t i = 0; i + bloco <= pesado.size(); i += passo) {
        double soma = 0;
        for (std::size_t j = i; j < i + bloco; ++j) soma += pesado[j] * pesado[j];
        energias.push_back(soma / double(bloco));
    }
    const auto media_acima = [&energias](double corte) {
        double soma = 0;
        int quantas = 0;
        for (const double e : energias)
            if (-0.691 + 10 * std::log10(e + 1e-12) > corte) soma += e, ++quantas;
        return quantas == 0 ? -99 : -0.691 + 10 * std::log10(soma / quantas);
    };
    return media_acima(media_acima(-70) - 10);
}

// Silêncio (abaixo de -50 dB) no começo e no fim, em ms.
std::array<double, 2> silencio_nas_pontas(const Amostras& som) {
    const auto soa = [](double a) { return em_db(std::abs(a)) > -50; };
    const auto primeira = std::find_if(som.begin(), som.end(), soa) - som.begin();
    const auto ultima = std::find_if(som.rbegin(), som.rend(), soa) - som.rbegin();
    return {double(primeira) * 1000 / taxa, double(ultima) * 1000 / taxa};
}

// A altura da voz, em Hz: a mediana dos trechos de 46 ms que se repetem de 2,5 a 14 ms depois.
double altura(const Amostras& som) {
    constexpr std::size_t trecho = 1024, menor = 55, maior = 310;
    std::vector<double> alturas;
    for (std::size_t i = 0; i + trecho + maior < som.size(); i += trecho / 2) {
        const auto parecido = [&](std::size_t atraso) {
            double junto = 0, aqui = 1e-9, depois = 1e-9;
            for (std::size_t j = i; j < i + trecho; ++j) {
                junto += som[j] * som[j + atraso];
                aqui += som[j] * som[j];
                depois += som[j + atraso] * som[j + atraso];
            }
            return junto / std::sqrt(aqui * depois);
        };
        double melhor = 0.85; // o que se repete menos que isto não é vogal
        std::size_t periodo = 0;
        for (std::size_t a = menor; a < maior; ++a)
            if (const double p = parecido(a); p > melhor + 0.03) melhor = p, periodo = a;
        if (periodo > 0) alturas.push_back(taxa / double(periodo));
    }
    if (alturas.empty()) return 0;
    std::nth_element(alturas.begin(), alturas.begin() + std::ptrdiff_t(alturas.size() / 2), alturas.end());
    return alturas[alturas.size() / 2];
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

bool eh_pregao(const std::string& nome) {
    return nome.find("-vz") != std::string::npos;
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
        std::map<Amostras, std::string> ouvidas;
        for (const auto& [nome, campos] : le_tabela(projeto / "audio/falas" / (std::string(sotaque) + ".tsv"))) {
            SCOPED_TRACE(std::string(sotaque) + "/" + nome + ": " + campos.back());
            const Amostras som = le_wav(clipe(sotaque, nome));
            // O pregão seguinte vem em 2,5 s e cortaria o anterior.
            EXPECT_LT(segundos(som), nomes.count(nome) ? 1.5 : eh_pregao(nome) ? 2.5 : 4);
            EXPECT_GT(segundos(som), 0.4);
            EXPECT_LT(pico(som), -1);
            EXPECT_NEAR(volume_percebido(som), -19.2, 1.6);
            for (const double ms : silencio_nas_pontas(som)) EXPECT_LT(ms, 150);
            for (const double ponta : {som.front(), som.back()}) EXPECT_LT(em_db(std::abs(ponta)), -60); // sem estalo
            const auto [outra, nova] = ouvidas.emplace(som, nome);
            EXPECT_TRUE(nova) << "o mesmo som que " << outra->second;
        }
    }
}

TEST(Sons, OHortelaoEAFeiranteSaoVozesDiferentes) {
    for (const char* sotaque : sotaques) {
        for (const char* nome : {"l1", "vamhor", "s3"}) {
            const double hz = altura(le_wav(clipe(sotaque, nome)));
            EXPECT_TRUE(hz > 75 && hz < 150) << sotaque << "/" << nome << ": " << hz;
        }
        for (const char* nome : {"alf-vz", "cen-vz", "tom-vz"}) {
            const double hz = altura(le_wav(clipe(sotaque, nome)));
            EXPECT_TRUE(hz > 165 && hz < 320) << sotaque << "/" << nome << ": " << hz;
        }
    }
}

TEST(Sons, ATrilhaDuraAApresentacaoESomeNoFim) {
    for (const char* nome : {"hortafim", "agendfim", "semefim", "feirafim", "htfimc", "agfimc", "sefimc", "fefimc",
                             "htfimi", "agfimi", "seimi", "fefimi"}) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (std::string(nome) + ".wav"));
        EXPECT_NEAR(segundos(som), 12, 0.1);
        EXPECT_LT(pico(som), -1);
        EXPECT_NEAR(volume_percebido(som), -22, 1.2);
        for (const double ms : silencio_nas_pontas(som)) EXPECT_LT(ms, 150);
        EXPECT_LT(pico(Amostras(som.end() - 2205, som.end())), -30);
        EXPECT_GT(pico(Amostras(som.end() - 2 * 22050, som.end() - 22050)), -25); // há música até começar a sumir
    }
}

TEST(Sons, OsEfeitosSaoCurtosEOSilencioESilencio) {
    const std::map<std::string, double> maior_duracao = {{"blip", 0.15}, {"silencio", 0.15}, {"voup", 0.6},
                                                         {"tzip", 0.4},  {"quickly", 0.3},   {"oia", 1.2}};
    EXPECT_EQ(le_tabela(projeto / "audio/efeitos.tsv").size(), maior_duracao.size());
    for (const auto& [nome, dura] : maior_duracao) {
        SCOPED_TRACE(nome);
        const Amostras som = le_wav(programa / (nome + ".wav"));
        EXPECT_LT(segundos(som), dura);
        if (nome == "silencio") {
            EXPECT_EQ(som, Amostras(som.size(), 0));
            continue;
        }
        EXPECT_TRUE(pico(som) > -12 && pico(som) < -1) << pico(som);
        EXPECT_LT(em_db(std::abs(som.back())), -50);
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
