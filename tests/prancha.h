// Miniaturas guardadas, uma embaixo da outra num PNG, com que se compara o que se vê. Com VERDALIA_MINIATURAS=1 no
// ambiente fazem-se de novo, depois de se olhar o que mudou.
#pragma once

#include "roteiro.h"

#include <SDL_image.h>
#include <cmath>

namespace verdalia {

struct Prancha {
    // Casas de cada miniatura; na PNG, um ponto por casa.
    Prancha(const char* png, int larga, int alta) : arquivo(png), largura(larga), altura(alta) {
        if (refaz) return;
        const Superficie lida(IMG_Load(png));
        EXPECT_TRUE(lida) << png;
        if (lida) guardados = le(*lida);
    }
    ~Prancha() {
        EXPECT_TRUE(refaz || vistos.size() == guardados.size()) << "há miniaturas a mais ou a menos";
        if (!refaz) return;
        const int linhas = static_cast<int>(vistos.size()) / 4 / largura;
        const Superficie nova(SDL_CreateRGBSurfaceWithFormatFrom(vistos.data(), largura, linhas, 32, 4 * largura,
                                                                 SDL_PIXELFORMAT_RGBA32));
        IMG_SavePNG(nova.get(), arquivo.c_str());
    }
    Prancha(const Prancha&) = delete;
    Prancha& operator=(const Prancha&) = delete;

    struct Diferenca {
        double media = 0, maior = 0; // por canal, de 0 a 255
    };
    // Quanto a figura difere da próxima miniatura. Onde é transparente, vê-se papel.
    Diferenca compara(SDL_Surface& figura) {
        const std::vector<std::uint8_t> pontos = le(figura);
        const std::array papel = {cor_papel.r, cor_papel.g, cor_papel.b};
        std::vector<double> casas(std::size_t(largura * altura * 4)); // somas de R, G e B, e quantos pontos
        for (std::size_t i = 0; i < pontos.size(); i += 4) {
            const int x = static_cast<int>(i / 4) % figura.w, y = static_cast<int>(i / 4) / figura.w;
            double* casa = &casas[std::size_t(y * altura / figura.h * largura + x * largura / figura.w) * 4];
            const double alfa = pontos[i + 3] / 255.0;
            for (std::size_t k = 0; k < 3; ++k) casa[k] += pontos[i + k] * alfa + papel[k] * (1 - alfa);
            ++casa[3];
        }
        Diferenca d;
        for (std::size_t i = 0; i < casas.size(); ++i) {
            const double agora = i % 4 == 3 ? 255 : casas[i] / casas[i / 4 * 4 + 3];
            const double diferenca = vistos.size() < guardados.size() ? std::abs(agora - guardados[vistos.size()]) : 0;
            vistos.push_back(static_cast<std::uint8_t>(std::lround(agora)));
            d.media += diferenca / (largura * altura * 3);
            d.maior = std::max(d.maior, diferenca);
        }
        return d;
    }

private:
    static std::vector<std::uint8_t> le(SDL_Surface& s) {
        std::vector<std::uint8_t> pontos(std::size_t(s.w * s.h * 4));
        SDL_ConvertPixels(s.w, s.h, s.format->format, s.pixels, s.pitch, SDL_PIXELFORMAT_RGBA32, pontos.data(),
                          s.w * 4);
        return pontos;
    }

    std::string arquivo;
    int largura, altura;
    bool refaz = std::getenv("VERDALIA_MINIATURAS") != nullptr;
    std::vector<std::uint8_t> guardados, vistos; // R, G, B e A, uma miniatura depois da outra
};

} // namespace verdalia
