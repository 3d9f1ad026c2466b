#include "platform/tela/imagem.h"

#include "platform/base/caminhos.h"

#include <SDL_image.h>
#include <cstdio>
#include <set>

namespace verdalia {

namespace {

// A figura em 32 bits; nula quando não há arquivo que se leia.
Superficie le_se_ha(const std::string& caminho) {
    const auto arquivo = acha(caminho);
    const Superficie lida(arquivo ? IMG_Load(arquivo->c_str()) : nullptr);
    if (!lida) return nullptr;
    const bool tem_alfa = SDL_ISPIXELFORMAT_ALPHA(lida->format->format);
    return Superficie(
        SDL_ConvertSurfaceFormat(lida.get(), tem_alfa ? SDL_PIXELFORMAT_ARGB8888 : SDL_PIXELFORMAT_XRGB8888, 0));
}

Superficie le(const std::string& caminho) {
    Superficie lida = le_se_ha(caminho);
    static std::set<std::string> ja_ditas; // uma linha por figura, mesmo que ela se peça a cada tique
    if (!lida && ja_ditas.insert(caminho).second)
        std::fprintf(stderr, "verdalia: figura que não pôde ser lida: %s\n", caminho.c_str());
    return lida;
}

// A mesma figura desenhada com o quádruplo dos pixels lógicos, que só as de letras e de traço miúdo têm.
Superficie le_fina(std::string caminho) {
    const std::size_t barra = caminho.rfind('\\');
    return le_se_ha(caminho.insert(barra == std::string::npos ? 0 : barra + 1, "4x\\"));
}

// Desfaz a pré-multiplicação, que só serve enquanto a figura é estirada.
void separa_alfa(SDL_Surface& s) {
    for (int y = 0; y < s.h; ++y) {
        auto* ponto =
            reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(s.pixels) + std::ptrdiff_t{y} * s.pitch);
        for (int x = 0; x < s.w; ++x, ++ponto) {
            const std::uint32_t alfa = *ponto >> 24;
            if (alfa == 0 || alfa == 255) continue;
            std::uint32_t novo = alfa << 24;
            for (int bits = 0; bits <= 16; bits += 8)
                novo |= std::min<std::uint32_t>(255, (((*ponto >> bits) & 255) * 255 + alfa / 2) / alfa) << bits;
            *ponto = novo;
        }
    }
}

// Estira com filtro bilinear. Com transparência, os pontos vão pré-multiplicados, senão a borda ganha franja.
Superficie estira(SDL_Surface& de, int largura, int altura) {
    const std::uint32_t formato = de.format->format;
    Superficie para(SDL_CreateRGBSurfaceWithFormat(0, largura, altura, 32, formato));
    if (!para) return nullptr;
    const bool tem_alfa = SDL_ISPIXELFORMAT_ALPHA(formato);
    if (tem_alfa) SDL_PremultiplyAlpha(de.w, de.h, formato, de.pixels, de.pitch, formato, de.pixels, de.pitch);
    SDL_SoftStretchLinear(&de, nullptr, para.get(), nullptr);
    if (tem_alfa) separa_alfa(*para);
    SDL_SetSurfaceBlendMode(para.get(), tem_alfa ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    return para;
}

} // namespace

SDL_Surface* Imagem::no_tamanho(int largura_px, int altura_px) {
    if (falta || largura_px <= 0 || altura_px <= 0) return nullptr;
    if (estirada && estirada->w == largura_px && estirada->h == altura_px) return estirada.get();
    if (largura_px > largura)
        if (Superficie fina = le_fina(caminho)) original = std::move(fina);
    if (!original) original = le(caminho);
    if (original) {
        estirada = estira(*original, largura_px, altura_px);
        original.reset();
    } else {
        falta = true;
        estirada.reset();
    }
    return estirada.get();
}

ImagemRef carrega_figura(std::string_view caminho) {
    if (caminho.empty()) return nullptr;
    auto figura = std::make_shared<Imagem>();
    figura->caminho = caminho;
    figura->original = le(figura->caminho);
    figura->falta = figura->original == nullptr;
    if (!figura->falta) {
        figura->largura = figura->original->w;
        figura->altura = figura->original->h;
    }
    return figura;
}

void troca_figura(ImagemRef& figura, const std::string& caminho) {
    if (!figura || figura->caminho != caminho) figura = carrega_figura(caminho);
}

} // namespace verdalia
