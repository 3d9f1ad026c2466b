#include "platform/tela/pintor.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

namespace verdalia {

namespace {

// A luz que a cor dá, de 0 a 1.
double luminancia(Cor c) {
    const auto linear = [](std::uint8_t v) {
        const double x = v / 255.0;
        return x <= 0.03928 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(c.r) + 0.7152 * linear(c.g) + 0.0722 * linear(c.b);
}

std::uint32_t na_cor(const SDL_Surface* s, Cor c) {
    return SDL_MapRGB(s->format, c.r, c.g, c.b);
}

// Mistura a cor num ponto com a cobertura dada, de 0 a 1.
void mistura(SDL_Surface* s, int x, int y, Cor c, double cobertura) {
    const SDL_Rect& corte = s->clip_rect;
    if (x < corte.x || y < corte.y || x >= corte.x + corte.w || y >= corte.y + corte.h) return;
    auto* ponto =
        reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(s->pixels) + std::ptrdiff_t{y} * s->pitch) + x;
    Cor de;
    SDL_GetRGB(*ponto, s->format, &de.r, &de.g, &de.b);
    const auto entre = [cobertura](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(std::lround(a + (b - a) * cobertura));
    };
    *ponto = na_cor(s, {entre(de.r, c.r), entre(de.g, c.g), entre(de.b, c.b)});
}

// Um texto já quebrado e desenhado. Quase todos se repetem de uma pintura para a outra.
struct Escrito {
    struct Linha {
        Superficie pontos; // vazia na linha em branco
        double largura;    // em pixels lógicos
    };
    std::vector<Linha> linhas;
    double passo; // de linha a linha, em pixels lógicos
};

constexpr std::size_t escritos_guardados = 256;

// Largura negativa: uma linha só. Vale até a próxima chamada.
const Escrito& escreve(std::string_view texto, const Letra& letra, double largura, double escala) {
    static std::unordered_map<std::string, Escrito> guardados;
    std::string chave(texto);
    const std::uint32_t cor = letra.cor.r << 16 | letra.cor.g << 8 | letra.cor.b;
    for (const double numero : {letra.corpo, largura, escala, double(cor),
                                double(letra.negrito + 2 * letra.sublinhado + 4 * int(letra.familia))})
        chave.append(reinterpret_cast<const char*>(&numero), sizeof numero);
    if (const auto ja = guardados.find(chave); ja != guardados.end()) return ja->second;
    if (guardados.size() >= escritos_guardados) guardados.clear();
    Escrito novo{{}, altura_linha(letra)};
    const auto linhas =
        largura < 0 ? std::vector<std::string>{std::string(texto)} : quebra_linhas(texto, letra, largura);
    for (const std::string& linha : linhas)
        novo.linhas.push_back({Superficie(TTF_RenderUTF8_Blended(fonte(letra, escala), linha.c_str(),
                                                                 {letra.cor.r, letra.cor.g, letra.cor.b, 255})),
                               largura_texto(linha, letra)});
    return guardados.emplace(std::move(chave), std::move(novo)).first->second;
}

} // namespace

double contraste(Cor a, Cor b) {
    const double la = luminancia(a), lb = luminancia(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

Cor tinta_sobre(Cor fundo) {
    return contraste(cor_tinta_escura, fundo) >= contraste(cor_tinta_clara, fundo) ? cor_tinta_escura : cor_tinta_clara;
}

Pintor::Pintor(SDL_Surface* superficie) : alvo(superficie), area{0, 0, superficie->w, superficie->h} {
    recorta();
    escala = std::min(alvo->w / double{largura_logica}, alvo->h / double{altura_logica});
    const int largura = static_cast<int>(std::lround(largura_logica * escala));
    const int altura = static_cast<int>(std::lround(altura_logica * escala));
    folga_x = (alvo->w - largura) / 2;
    folga_y = (alvo->h - altura) / 2;
}

void Pintor::pinta_folgas() {
    const SDL_Rect faixas[] = {{0, 0, folga_x, alvo->h},
                               {alvo->w - folga_x - 1, 0, folga_x + 1, alvo->h},
                               {0, 0, alvo->w, folga_y},
                               {0, alvo->h - folga_y - 1, alvo->w, folga_y + 1}};
    for (const SDL_Rect& faixa : faixas) SDL_FillRect(alvo, &faixa, na_cor(alvo, {0x2b, 0x1a, 0x10}));
}

SDL_Rect Pintor::na_janela(const Retangulo& r) const {
    // Cada borda é arredondada por si, para que vizinhos continuem encostados em qualquer escala.
    const auto px = [this](double v) { return static_cast<int>(std::lround(v * escala)); };
    return {folga_x + px(r.x), folga_y + px(r.y), px(r.x + r.largura) - px(r.x), px(r.y + r.altura) - px(r.y)};
}

void Pintor::retangulo(const Retangulo& r, Cor cor) {
    if (cor.a == 0) return;
    const SDL_Rect alvo_px = na_janela(r);
    SDL_FillRect(alvo, &alvo_px, na_cor(alvo, cor));
}

void Pintor::redondo(const Retangulo& r, double raio, Cor cor) {
    if (cor.a == 0) return;
    const SDL_Rect q = na_janela(r);
    const int raio_px = std::min({static_cast<int>(std::lround(raio * escala)), q.w / 2, q.h / 2});
    for (int y = 0; y < q.h; ++y) {
        const int da_borda = std::min(y, q.h - 1 - y);
        double recuo = 0;
        if (da_borda < raio_px) {
            const double dy = raio_px - da_borda - 0.5;
            recuo = raio_px - std::sqrt(static_cast<double>(raio_px) * raio_px - dy * dy);
        }
        const int cheio = static_cast<int>(std::ceil(recuo));
        const SDL_Rect linha{q.x + cheio, q.y + y, q.w - 2 * cheio, 1};
        SDL_FillRect(alvo, &linha, na_cor(alvo, cor));
        if (cheio > 0) {
            mistura(alvo, q.x + cheio - 1, q.y + y, cor, cheio - recuo);
            mistura(alvo, q.x + q.w - cheio, q.y + y, cor, cheio - recuo);
        }
    }
}

void Pintor::moldura(const Retangulo& r, double raio, double espessura, Cor cor, Cor miolo) {
    redondo(r, raio, cor);
    redondo({r.x + espessura, r.y + espessura, r.largura - 2 * espessura, r.altura - 2 * espessura},
            std::max(0.0, raio - espessura), miolo);
}

void Pintor::contorno(const Retangulo& r, double espessura, Cor cor) {
    retangulo({r.x, r.y, r.largura, espessura}, cor);
    retangulo({r.x, r.y + r.altura - espessura, r.largura, espessura}, cor);
    retangulo({r.x, r.y, espessura, r.altura}, cor);
    retangulo({r.x + r.largura - espessura, r.y, espessura, r.altura}, cor);
}

void Pintor::anel(const Retangulo& r) {
    const auto em_volta = [&r](double folga) {
        return Retangulo{r.x - folga, r.y - folga, r.largura + 2 * folga, r.altura + 2 * folga};
    };
    contorno(em_volta(5), 1.5, cor_tinta_clara);
    contorno(em_volta(3.5), 3, cor_foco);
    contorno(em_volta(0.5), 1, cor_tinta_clara);
}

void Pintor::imagem(Imagem& figura, const Retangulo& r) {
    SDL_Rect q = na_janela(r);
    if (SDL_Surface* pronta = figura.no_tamanho(q.w, q.h)) {
        SDL_BlitSurface(pronta, nullptr, alvo, &q);
        return;
    }
    moldura(r, 4, 1.5, cor_madeira, cor_papel);
    const std::size_t barra = figura.caminho.find_last_of('\\');
    texto_em(figura.caminho.substr(barra == std::string::npos ? 0 : barra + 1), r, {.corpo = 7});
}

void Pintor::texto(std::string_view texto, double x, double y, const Letra& letra) {
    const Escrito& escrito = escreve(texto, letra, -1, escala);
    SDL_Rect q = na_janela({x, y, 0, 0});
    if (escrito.linhas.front().pontos) SDL_BlitSurface(escrito.linhas.front().pontos.get(), nullptr, alvo, &q);
}

void Pintor::texto_em(std::string_view texto, const Retangulo& r, const Letra& letra, Alinha alinha) {
    const Escrito& escrito = escreve(texto, letra, r.largura, escala);
    double y = r.y + std::max(0.0, (r.altura - escrito.passo * static_cast<double>(escrito.linhas.size())) / 2);
    recorta(r);
    for (const auto& linha : escrito.linhas) {
        const double sobra = r.largura - linha.largura;
        const double x = r.x + (alinha == Alinha::esquerda ? 0 : alinha == Alinha::centro ? sobra / 2 : sobra);
        SDL_Rect q = na_janela({x, y, 0, 0});
        if (linha.pontos) SDL_BlitSurface(linha.pontos.get(), nullptr, alvo, &q);
        y += escrito.passo;
    }
    recorta();
}

void Pintor::texto_que_cabe(std::string_view texto, const Retangulo& r, Letra letra) {
    constexpr double menor_corpo = 5;
    for (; letra.corpo > menor_corpo; letra.corpo -= 0.5) {
        int largura = 0;
        TTF_SizeUTF8(fonte(letra, escala), std::string(texto).c_str(), &largura, nullptr);
        if (largura <= r.largura * escala && largura_texto(texto, letra) <= r.largura) break;
    }
    texto_em(texto, r, letra);
}

void Pintor::recorta(const Retangulo& r) {
    SDL_Rect q = na_janela(r);
    SDL_IntersectRect(&q, &area, &q);
    SDL_SetClipRect(alvo, &q);
}

void Pintor::recorta() {
    SDL_SetClipRect(alvo, &area);
}

void Pintor::limita(const Retangulo& r) {
    const SDL_Rect q = na_janela(r);
    SDL_IntersectRect(&area, &q, &area);
    recorta();
}

} // namespace verdalia
