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
        guardada.reset(lida ? SDL_ConvertSurfaceFormat(lida.get(), SDL_PIXELFORMAT_RGBA32, 0) : nullptr);
        EXPECT_TRUE(guardada) << png;
    }
    ~Prancha() {
        const int linhas = static_cast<int>(pontos.size()) / 4 / largura;
        EXPECT_TRUE(refaz || (guardada && guardada->h == linhas)) << "há miniaturas a mais ou a menos";
        if (!refaz) return;
        const Superficie nova(SDL_CreateRGBSurfaceWithFormatFrom(pontos.data(), largura, linhas, 32, 4 * largura,
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
        const Superficie s(SDL_ConvertSurfaceFormat(&figura, SDL_PIXELFORMAT_RGBA32, 0));
        std::vector<double> soma(std::size_t(largura * altura * 4));
        const std::array papel = {cor_papel.r, cor_papel.g, cor_papel.b};
        for (int y = 0; y < s->h; ++y)
            for (int x = 0; x < s->w; ++x) {
                const auto* ponto = static_cast<const std::uint8_t*>(s->pixels) + std::ptrdiff_t{y} * s->pitch + 4 * x;
                double* casa = &soma[std::size_t(y * altura / s->h * largura + x * largura / s->w) * 4];
                const double alfa = ponto[3] / 255.0;
                for (std::size_t k = 0; k < 3; ++k) casa[k] += ponto[k] * alfa + papel[k] * (1 - alfa);
                ++casa[3];
            }
        Diferenca d;
        for (std::size_t i = 0; i < soma.size(); ++i) {
            const double agora = i % 4 == 3 ? 255 : soma[i] / soma[i / 4 * 4 + 3];
            const std::size_t onde = pontos.size();
            pontos.push_back(static_cast<std::uint8_t>(std::lround(agora)));
            if (refaz || !guardada || onde >= std::size_t(guardada->h * largura * 4)) continue;
            const std::size_t linha = std::size_t(largura) * 4;
            const auto* antes = static_cast<const std::uint8_t*>(guardada->pixels) +
                                onde / linha * std::size_t(guardada->pitch) + onde % linha;
            const double diferenca = std::abs(agora - *antes);
            d.media += diferenca / (largura * altura * 3);
            d.maior = std::max(d.maior, diferenca);
        }
        return d;
    }

private:
    std::string arquivo;
    int largura, altura;
    bool refaz = std::getenv("VERDALIA_MINIATURAS") != nullptr;
    Superficie guardada;
    std::vector<std::uint8_t> pontos;
};

} // namespace verdalia
