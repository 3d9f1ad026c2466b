// Figuras: um SVG vira pontos, e os pontos viram BMP ou JPEG.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace verdalia {

// Pontos de cima para baixo, 0xAARRGGBB, alfa reto (a cor não vem multiplicada pelo alfa).
struct Figura {
    int largura = 0, altura = 0;
    std::vector<std::uint32_t> pontos;
};

// Desenha o SVG no tamanho dado em pontos, sem deformar, com a folha de estilo por cima ("" = nenhuma).
// SVG quebrado: std::runtime_error.
Figura desenha_svg(const std::filesystem::path& svg, const std::string& folha, int largura, int altura);

// Um cartão de papel com o nome e o número do quadro (0 = sem número), para a figura que ainda não foi desenhada.
// `cheio`: sem cantos redondos nem transparência.
Figura desenha_cartao(const std::string& nome, int quadro, int largura, int altura, bool cheio);

// Põe nos pontos transparentes, até dois passos do desenho, a cor média dos vizinhos pintados: assim a figura
// esticada não ganha franja escura. O alfa não muda.
void espalha_cor(Figura& f);

// BMP de 32 bits com máscara de alfa. JPEG de qualidade 90 (o alfa se perde: o que é transparente vira papel).
// Sem poder gravar: std::runtime_error.
void grava_bmp(const Figura& f, const std::filesystem::path& destino);
void grava_jpeg(const Figura& f, const std::filesystem::path& destino);

} // namespace verdalia
