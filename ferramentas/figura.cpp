#include "figura.h"

#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

#include <jpeglib.h>

#include "arquivo.h"

namespace verdalia {
namespace {

using Superficie = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Pincel = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

struct Cor {
    double r, g, b;
};
constexpr Cor papel = {0.984, 0.929, 0.769}, madeira = {0.749, 0.529, 0.282}, tinta = {0.353, 0.212, 0.125},
              folha_clara = {0.525, 0.729, 0.275};

void usa_cor(cairo_t* c, const Cor& cor) {
    cairo_set_source_rgb(c, cor.r, cor.g, cor.b);
}

// A Cairo guarda a cor multiplicada pelo alfa: aqui ela é dividida de volta.
Figura figura_de(cairo_surface_t* s) {
    cairo_surface_flush(s);
    if (cairo_surface_status(s) != CAIRO_STATUS_SUCCESS) throw std::runtime_error("não há memória para a figura");
    Figura f{cairo_image_surface_get_width(s), cairo_image_surface_get_height(s), {}};
    f.pontos.reserve(std::size_t(f.largura) * std::size_t(f.altura));
    const std::ptrdiff_t passo = cairo_image_surface_get_stride(s);
    for (int y = 0; y < f.altura; ++y) {
        const auto* linha = reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(s) + y * passo);
        for (int x = 0; x < f.largura; ++x) {
            const std::uint32_t ponto = linha[x], a = ponto >> 24;
            const auto reto = [&](int desloca) {
                const std::uint32_t canal = ponto >> desloca & 255;
                return a == 0 ? 0u : std::min(255u, (canal * 255 + a / 2) / a) << desloca;
            };
            f.pontos.push_back(a << 24 | reto(16) | reto(8) | reto(0));
        }
    }
    return f;
}

Superficie nova_superficie(int largura, int altura) {
    return {cairo_image_surface_create(CAIRO_FORMAT_ARGB32, largura, altura), cairo_surface_destroy};
}

void caminho_redondo(cairo_t* c, double borda, double largura, double altura, double raio) {
    cairo_new_sub_path(c);
    cairo_arc(c, largura - borda - raio, borda + raio, raio, -M_PI / 2, 0);
    cairo_arc(c, largura - borda - raio, altura - borda - raio, raio, 0, M_PI / 2);
    cairo_arc(c, borda + raio, altura - borda - raio, raio, M_PI / 2, M_PI);
    cairo_arc(c, borda + raio, borda + raio, raio, M_PI, 3 * M_PI / 2);
    cairo_close_path(c);
}

// Um broto de duas folhas que balança de um quadro para o outro, para que se veja a série andar.
void pinta_broto(cairo_t* c, double x, double y, double tamanho, int quadro) {
    cairo_save(c);
    cairo_translate(c, x, y);
    cairo_rotate(c, quadro % 2 == 0 ? 0.18 : -0.18);
    cairo_scale(c, tamanho, tamanho);
    usa_cor(c, folha_clara);
    for (const double lado : {-1.0, 1.0}) {
        cairo_move_to(c, 0, -0.3);
        cairo_curve_to(c, lado * 0.1, -1, lado * 0.7, -1, lado * 0.9, -0.9);
        cairo_curve_to(c, lado * 0.8, -0.3, lado * 0.4, -0.1, 0, -0.3);
        cairo_fill(c);
    }
    cairo_set_line_width(c, 0.14);
    cairo_move_to(c, 0, 0);
    cairo_line_to(c, 0, -0.4);
    cairo_stroke(c);
    cairo_restore(c);
}

// Escreve centrado em x, com o pé da linha em y, na maior letra até `letra` que caiba em `espaco`.
void escreve(cairo_t* c, const std::string& texto, double x, double y, double letra, double espaco) {
    cairo_text_extents_t medida;
    cairo_set_font_size(c, letra);
    cairo_text_extents(c, texto.c_str(), &medida);
    if (medida.width > espaco) cairo_set_font_size(c, letra * espaco / medida.width);
    cairo_text_extents(c, texto.c_str(), &medida);
    cairo_move_to(c, x - medida.width / 2 - medida.x_bearing, y);
    cairo_show_text(c, texto.c_str());
}

} // namespace

Figura desenha_svg(const std::filesystem::path& svg, const std::string& folha, int largura, int altura) {
    GError* erro = nullptr;
    const auto confere = [&erro](bool certo) {
        if (certo) return;
        std::string texto = erro != nullptr ? erro->message : "SVG que não se lê";
        g_clear_error(&erro);
        texto.erase(texto.find_last_not_of('\n') + 1);
        throw std::runtime_error(texto);
    };
    // O arquivo é lido com o seu endereço, para que a biblioteca ache o que ele inclui de pecas/.
    const std::unique_ptr<GFile, decltype(&g_object_unref)> arquivo(g_file_new_for_path(svg.c_str()), g_object_unref);
    const std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> desenho(
        rsvg_handle_new_from_gfile_sync(arquivo.get(), RSVG_HANDLE_FLAGS_NONE, nullptr, &erro), g_object_unref);
    confere(desenho != nullptr);
    if (!folha.empty())
        confere(rsvg_handle_set_stylesheet(desenho.get(), reinterpret_cast<const guint8*>(folha.data()), folha.size(),
                                           &erro));
    const Superficie s = nova_superficie(largura, altura);
    const Pincel c(cairo_create(s.get()), cairo_destroy);
    const RsvgRectangle quadro = {0, 0, double(largura), double(altura)};
    confere(rsvg_handle_render_document(desenho.get(), c.get(), &quadro, &erro));
    return figura_de(s.get());
}

Figura desenha_cartao(const std::string& nome, int quadro, int largura, int altura, bool cheio) {
    const Superficie s = nova_superficie(largura, altura);
    const Pincel pincel(cairo_create(s.get()), cairo_destroy);
    cairo_t* c = pincel.get();
    const double menor = std::min(largura, altura), fio = std::max(2.0, std::min(8.0, menor / 24));
    if (cheio) {
        usa_cor(c, papel);
        cairo_paint(c);
    }
    caminho_redondo(c, fio, largura, altura, menor / 8);
    usa_cor(c, papel);
    cairo_fill_preserve(c);
    usa_cor(c, madeira);
    cairo_set_line_width(c, fio);
    cairo_stroke(c);

    // O nome se parte em pedaços que caibam em letra que se leia.
    const double letra = std::clamp(menor * 0.2, 11.0, 48.0), linha = letra * 1.15, espaco = largura - 4 * fio;
    const std::size_t pedaco = std::max<std::size_t>(5, std::size_t(espaco / (letra * 0.5)));
    std::vector<std::string> linhas;
    for (std::size_t i = 0; i < nome.size(); i += pedaco) linhas.push_back(nome.substr(i, pedaco));
    if (quadro > 0) linhas.push_back("quadro " + std::to_string(quadro));
    const double miolo = double(linhas.size()) * linha;
    const bool cabe_broto = miolo + linha <= altura - 4 * fio;
    double y = (altura - miolo + (cabe_broto ? linha : 0)) / 2 + letra * 0.85;
    if (cabe_broto) pinta_broto(c, largura / 2.0, y - linha, letra * 0.9, quadro);
    usa_cor(c, tinta);
    cairo_select_font_face(c, "Andika", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    for (const std::string& texto : linhas) {
        escreve(c, texto, largura / 2.0, y, letra, espaco);
        y += linha;
    }
    return figura_de(s.get());
}

void espalha_cor(Figura& f) {
    const auto ponto = [&f](int x, int y) -> std::uint32_t& {
        return f.pontos[std::size_t(y) * std::size_t(f.largura) + std::size_t(x)];
    };
    std::vector<char> pintado(f.pontos.size());
    for (std::size_t i = 0; i < pintado.size(); ++i) pintado[i] = f.pontos[i] >> 24 != 0;
    for (int passo = 0; passo < 2; ++passo) {
        const std::vector<char> antes = pintado;
        const auto estava = [&](int x, int y) {
            return x >= 0 && y >= 0 && x < f.largura && y < f.altura &&
                   antes[std::size_t(y) * std::size_t(f.largura) + std::size_t(x)] != 0;
        };
        for (int y = 0; y < f.altura; ++y)
            for (int x = 0; x < f.largura; ++x) {
                if (estava(x, y)) continue;
                unsigned n = 0, r = 0, g = 0, b = 0;
                for (int vy = y - 1; vy <= y + 1; ++vy)
                    for (int vx = x - 1; vx <= x + 1; ++vx) {
                        if (!estava(vx, vy)) continue;
                        const std::uint32_t v = ponto(vx, vy);
                        r += v >> 16 & 255, g += v >> 8 & 255, b += v & 255, ++n;
                    }
                if (n == 0) continue;
                ponto(x, y) = r / n << 16 | g / n << 8 | b / n;
                pintado[std::size_t(y) * std::size_t(f.largura) + std::size_t(x)] = 1;
            }
    }
}

void grava_bmp(const Figura& f, const std::filesystem::path& destino) {
    const std::uint32_t cabecalho = 14 + 108, tamanho = std::uint32_t(f.pontos.size() * 4);
    std::string b = "BM";
    b += bytes_de<std::uint32_t>({cabecalho + tamanho, 0, cabecalho});
    // Cabeçalho da versão 4: é ela que diz onde está o alfa. 3 = cores por máscara; 2835 pontos por metro.
    b += bytes_de<std::uint32_t>({108, std::uint32_t(f.largura), std::uint32_t(f.altura)});
    b += bytes_de<std::uint16_t>({1, 32});
    b += bytes_de<std::uint32_t>({3, tamanho, 2835, 2835, 0, 0, 0xff0000, 0xff00, 0xff, 0xff000000});
    b += "BGRs";
    b.append(48, '\0');
    for (int y = f.altura - 1; y >= 0; --y) // de baixo para cima, como manda o formato
        b.append(reinterpret_cast<const char*>(f.pontos.data() + std::size_t(y) * std::size_t(f.largura)),
                 std::size_t(f.largura) * 4);
    grava_arquivo(destino, b);
}

void grava_jpeg(const Figura& f, const std::filesystem::path& destino) {
    jpeg_compress_struct j;
    jpeg_error_mgr erros;
    j.err = jpeg_std_error(&erros);
    jpeg_create_compress(&j);
    unsigned char* saida = nullptr;
    unsigned long tamanho = 0;
    jpeg_mem_dest(&j, &saida, &tamanho);
    j.image_width = JDIMENSION(f.largura);
    j.image_height = JDIMENSION(f.altura);
    j.input_components = 3;
    j.in_color_space = JCS_RGB;
    jpeg_set_defaults(&j);
    jpeg_set_quality(&j, 90, TRUE);
    jpeg_start_compress(&j, TRUE);
    const double fundo[] = {papel.r * 255, papel.g * 255, papel.b * 255};
    std::vector<unsigned char> linha(std::size_t(f.largura) * 3);
    for (std::size_t y = 0; y < std::size_t(f.altura); ++y) {
        for (std::size_t x = 0; x < std::size_t(f.largura); ++x) {
            const std::uint32_t ponto = f.pontos[y * std::size_t(f.largura) + x];
            const double a = double(ponto >> 24) / 255;
            for (std::size_t canal = 0; canal < 3; ++canal)
                linha[x * 3 + canal] = static_cast<unsigned char>(
                    std::lround((ponto >> (16 - 8 * canal) & 255) * a + fundo[canal] * (1 - a)));
        }
        unsigned char* linhas[] = {linha.data()};
        jpeg_write_scanlines(&j, linhas, 1);
    }
    jpeg_finish_compress(&j);
    jpeg_destroy_compress(&j);
    const std::unique_ptr<unsigned char, decltype(&std::free)> dono(saida, std::free);
    grava_arquivo(destino, {reinterpret_cast<const char*>(saida), tamanho});
}

} // namespace verdalia
