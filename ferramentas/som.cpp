#include "som.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <sstream>
#include <stdexcept>

#include "arquivo.h"

namespace verdalia {
namespace {

constexpr double taxa = 22050, maior_duracao_ms = 60000;

struct Nota {
    std::string onda;
    double inicio_ms, duracao_ms, de_hz, ate_hz, volume, ataque_ms;
};

// Soma a nota: a altura escorrega de de_hz a ate_hz, o volume sobe no ataque e cai até sumir.
void soma_nota(Amostras& som, const Nota& nota) {
    const std::size_t primeira = std::size_t(nota.inicio_ms * taxa / 1000);
    const std::size_t quantas = std::size_t(nota.duracao_ms * taxa / 1000);
    som.resize(std::max(som.size(), primeira + quantas), 0);
    std::mt19937 sorteio(1); // sempre a mesma semente: o mesmo arquivo em toda construção
    std::uniform_real_distribution<double> chiado(-1, 1);
    double fase = 0, suave = 0;
    for (std::size_t i = 0; i < quantas; ++i) {
        const double t = double(i) / double(quantas), ms = double(i) * 1000 / taxa;
        const double hz = nota.de_hz * std::pow(nota.ate_hz / nota.de_hz, t);
        fase += 2 * M_PI * hz / taxa;
        double v = std::sin(fase);
        if (nota.onda == "flauta") v = 0.8 * v + 0.15 * std::sin(2 * fase) + 0.05 * std::sin(3 * fase);
        if (nota.onda == "sopro") { // chiado que só deixa passar o que está abaixo da altura
            const double peso = 1 - std::exp(-2 * M_PI * hz / taxa);
            suave += peso * (chiado(sorteio) - suave);
            v = suave;
        }
        const double sobe = nota.ataque_ms > 0 ? std::min(1.0, ms / nota.ataque_ms) : 1;
        som[primeira + i] += v * nota.volume * sobe * (1 - t) * (1 - t);
    }
}

} // namespace

Amostras efeito(std::string_view tabela, const std::string& nome) {
    Amostras som;
    std::istringstream linhas{std::string(tabela)};
    int numero = 0;
    for (std::string linha; std::getline(linhas, linha);) {
        ++numero;
        std::istringstream campos(linha);
        std::string arquivo;
        if (!(campos >> arquivo) || arquivo[0] == '#' || arquivo != nome) continue;
        Nota n{};
        campos >> n.onda >> n.inicio_ms >> n.duracao_ms >> n.de_hz >> n.ate_hz >> n.volume >> n.ataque_ms;
        if (!campos || n.inicio_ms < 0 || n.duracao_ms <= 0 || n.inicio_ms + n.duracao_ms > maior_duracao_ms ||
            n.de_hz <= 0 || n.ate_hz <= 0 || (n.onda != "seno" && n.onda != "flauta" && n.onda != "sopro"))
            throw std::runtime_error("linha " + std::to_string(numero) + ": nota malformada");
        soma_nota(som, n);
    }
    if (som.empty()) throw std::runtime_error("não tem nota para " + nome);
    return som;
}

Amostras tom_de_espera(const std::string& nome, double segundos) {
    constexpr double escala[] = {261.6, 293.7, 329.6, 392.0, 440.0}; // cinco notas que combinam entre si
    unsigned soma = 0;
    for (const char c : nome) soma = soma * 31 + static_cast<unsigned char>(c);
    const double hz = escala[soma % std::size(escala)];
    Amostras som(std::size_t(segundos * taxa));
    for (std::size_t i = 0; i < som.size(); ++i) {
        const double t = double(i) / double(som.size());
        som[i] = 0.2 * std::sin(M_PI * t) * std::sin(2 * M_PI * hz * double(i) / taxa);
    }
    return som;
}

void grava_wav(const Amostras& amostras, const std::filesystem::path& destino) {
    const std::uint32_t bytes = std::uint32_t(amostras.size() * 2), hz = std::uint32_t(taxa);
    std::string b = "RIFF" + bytes_de<std::uint32_t>({36 + bytes}) + "WAVEfmt " + bytes_de<std::uint32_t>({16}) +
                    bytes_de<std::uint16_t>({1, 1}) + bytes_de<std::uint32_t>({hz, hz * 2}) +
                    bytes_de<std::uint16_t>({2, 16}) + "data" + bytes_de<std::uint32_t>({bytes});
    for (const double a : amostras)
        b += bytes_de<std::uint16_t>({std::uint16_t(std::int16_t(std::lround(std::clamp(a, -1.0, 1.0) * 32767)))});
    grava_arquivo(destino, b);
}

} // namespace verdalia
