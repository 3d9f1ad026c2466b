// Desenha as figuras que saem de uma fonte: figura FONTE.svg e, para cada uma, LARGURA ALTURA QUADRO ESTILO.css
// DESTINO (.bmp, .jpg ou .png), em pixels lógicos; o desenho sai com o dobro deles. QUADRO e ESTILO são "-" quando não
// se usam. Sai com 1 e diz por quê quando não pôde.
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <malloc.h>

#include "platform/base/arquivo.h"
#include "quadros.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

constexpr std::size_t maximo = 1 << 20; // de uma tabela de quadros ou de uma folha de estilo
constexpr std::uint32_t papel = 0xfbedc4;

// Pontos de cima para baixo, 0xAARRGGBB.
struct Figura {
    int largura, altura;
    std::vector<std::uint32_t> pontos = std::vector<std::uint32_t>(std::size_t(largura) * std::size_t(altura));

    std::size_t lugar(int x, int y) const { return std::size_t(y) * std::size_t(largura) + std::size_t(x); }
};

constexpr std::uint32_t canal(std::uint32_t ponto, int desloca) {
    return ponto >> desloca & 255;
}

void confere(bool certo, GError* erro) {
    if (!certo) throw std::runtime_error(erro != nullptr ? erro->message : "não há memória para a figura");
}

// A Cairo guarda a cor multiplicada pelo alfa: aqui ela é dividida de volta.
void separa_alfa(Figura& f) {
    for (std::uint32_t& ponto : f.pontos) {
        const std::uint32_t a = ponto >> 24, junto = ponto;
        ponto = a << 24;
        if (a == 0) continue;
        for (const int d : {16, 8, 0}) ponto |= std::min(255U, (canal(junto, d) * 255 + a / 2) / a) << d;
    }
}

// O SVG no tamanho dado em pontos, sem deformar, com a folha de estilo por cima ("" = nenhuma).
Figura desenha_svg(const fs::path& svg, const std::string& folha, int largura, int altura) {
    GError* erro = nullptr;
    // O arquivo é lido com o seu endereço, para que a biblioteca ache o que ele inclui de pecas/.
    const std::unique_ptr<GFile, decltype(&g_object_unref)> arquivo(g_file_new_for_path(svg.c_str()), g_object_unref);
    const std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> desenho(
        rsvg_handle_new_from_gfile_sync(arquivo.get(), RSVG_HANDLE_FLAGS_NONE, nullptr, &erro), g_object_unref);
    confere(desenho != nullptr, erro);
    const auto* css = reinterpret_cast<const guint8*>(folha.data());
    confere(folha.empty() || rsvg_handle_set_stylesheet(desenho.get(), css, folha.size(), &erro), erro);

    Figura f{largura, altura};
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> tela(
        cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(f.pontos.data()), CAIRO_FORMAT_ARGB32,
                                            largura, altura, largura * 4),
        cairo_surface_destroy);
    const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> pincel(cairo_create(tela.get()), cairo_destroy);
    const RsvgRectangle quadro = {0, 0, double(largura), double(altura)};
    confere(rsvg_handle_render_document(desenho.get(), pincel.get(), &quadro, &erro), erro);
    cairo_surface_finish(tela.get());
    separa_alfa(f);
    return f;
}

// Põe nos pontos transparentes, até dois passos do desenho, a cor média dos vizinhos pintados: assim a figura esticada
// não ganha franja escura. O alfa não muda.
void espalha_cor(Figura& f) {
    std::vector<char> pintado;
    for (const std::uint32_t ponto : f.pontos) pintado.push_back(ponto >> 24 != 0);
    for (int passo = 0; passo < 2; ++passo) {
        const std::vector<char> antes = pintado;
        for (int y = 0; y < f.altura; ++y)
            for (int x = 0; x < f.largura; ++x) {
                if (antes[f.lugar(x, y)]) continue;
                std::uint32_t n = 0, r = 0, g = 0, b = 0;
                for (int vy = std::max(y - 1, 0); vy <= std::min(y + 1, f.altura - 1); ++vy)
                    for (int vx = std::max(x - 1, 0); vx <= std::min(x + 1, f.largura - 1); ++vx) {
                        if (!antes[f.lugar(vx, vy)]) continue;
                        const std::uint32_t v = f.pontos[f.lugar(vx, vy)];
                        r += canal(v, 16), g += canal(v, 8), b += canal(v, 0), ++n;
                    }
                if (n == 0) continue;
                f.pontos[f.lugar(x, y)] = r / n << 16 | g / n << 8 | b / n;
                pintado[f.lugar(x, y)] = 1;
            }
    }
}

// Os números em sequência de bytes, o menos significativo primeiro.
template <class Numero> void poe(std::string& bytes, std::initializer_list<Numero> numeros) {
    for (const Numero numero : numeros)
        for (std::size_t i = 0; i < sizeof numero; ++i) bytes += static_cast<char>(numero >> (8 * i) & 255);
}

std::string em_bmp(const Figura& f) {
    const std::uint32_t cabecalho = 14 + 108, tamanho = std::uint32_t(f.pontos.size() * 4);
    std::string b = "BM";
    poe<std::uint32_t>(b, {cabecalho + tamanho, 0, cabecalho});
    // Cabeçalho da versão 4: é ela que diz onde está o alfa. 3 = cores por máscara; 2835 pontos por metro.
    poe<std::uint32_t>(b, {108, std::uint32_t(f.largura), std::uint32_t(f.altura)});
    poe<std::uint16_t>(b, {1, 32});
    poe<std::uint32_t>(b, {3, tamanho, 2835, 2835, 0, 0, 0xff0000, 0xff00, 0xff, 0xff000000});
    b += "BGRs";
    b.append(48, '\0');
    for (int y = f.altura - 1; y >= 0; --y) // de baixo para cima, como manda o formato
        b.append(reinterpret_cast<const char*>(&f.pontos[f.lugar(0, y)]), std::size_t(f.largura) * 4);
    return b;
}

// PNG, ou JPEG de qualidade 90, onde o alfa se perde: o que é transparente vira papel.
std::string comprimida(const Figura& f, bool png) {
    std::vector<guchar> cores;
    for (const std::uint32_t ponto : f.pontos) {
        const std::uint32_t alfa = ponto >> 24, a = png ? 255 : alfa;
        for (const int d : {16, 8, 0})
            cores.push_back(guchar((canal(ponto, d) * a + canal(papel, d) * (255 - a) + 127) / 255));
        if (png) cores.push_back(guchar(alfa));
    }
    const std::unique_ptr<GdkPixbuf, decltype(&g_object_unref)> folha(
        gdk_pixbuf_new_from_data(cores.data(), GDK_COLORSPACE_RGB, png, 8, f.largura, f.altura,
                                 f.largura * (png ? 4 : 3), nullptr, nullptr),
        g_object_unref);
    gchar* bytes = nullptr;
    gsize tamanho = 0;
    GError* erro = nullptr;
    confere(gdk_pixbuf_save_to_buffer(folha.get(), &bytes, &tamanho, png ? "png" : "jpeg", &erro,
                                      png ? nullptr : "quality", "90", nullptr),
            erro);
    const std::unique_ptr<gchar, decltype(&g_free)> dono(bytes, g_free);
    return {bytes, tamanho};
}

std::string desenha(const fs::path& fonte, int largura, int altura, int quadro, const std::string& estilo,
                    const fs::path& tipo) {
    std::string folha;
    if (quadro > 0) folha = folha_do_quadro(le_arquivo(fs::path(fonte).replace_extension(".quadros"), maximo), quadro);
    if (estilo != "-") folha += le_arquivo(estilo, maximo);
    Figura f = desenha_svg(fonte, folha, largura * 2, altura * 2);
    if (tipo != ".bmp") return comprimida(f, tipo == ".png");
    espalha_cor(f);
    return em_bmp(f);
}

} // namespace
} // namespace verdalia

int main(int quantos, char** argumentos) {
    constexpr int cada = 5;
    if (quantos < 2 + cada || (quantos - 2) % cada != 0) {
        std::fprintf(stderr, "Uso: figura FONTE.svg {LARGURA ALTURA QUADRO ESTILO.css DESTINO}...\n");
        return 2;
    }
    // Cada filtro de um SVG pede e larga memória do tamanho da figura: guardada no processo, em vez de devolvida ao
    // sistema a cada vez, uma cena grande desenha-se em um quarto do tempo.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    mallopt(M_TOP_PAD, 64 * 1024 * 1024);
    try {
        using namespace verdalia;
        for (char** pedido = argumentos + 2; pedido != argumentos + quantos; pedido += cada) {
            const fs::path destino = pedido[4];
            grava_arquivo(destino, desenha(argumentos[1], std::atoi(pedido[0]), std::atoi(pedido[1]),
                                           std::atoi(pedido[2]), pedido[3], destino.extension()));
        }
        return 0;
    } catch (const std::exception& erro) {
        std::fprintf(stderr, "%s: %s\n", argumentos[1], erro.what());
        return 1;
    }
}
