#include "platform/base/texto.h"

#include <algorithm>
#include <array>

namespace verdalia {

namespace {

// Os bytes 0x80 a 0x9F do Windows-1252; os outros são iguais ao código Unicode.
constexpr std::array<char32_t, 32> faixa_1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t invalido = 0xFFFFFFFF;

void junta_utf8(std::string& saida, char32_t c) {
    if (c < 0x80) {
        saida += static_cast<char>(c);
        return;
    }
    const int continuacoes = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr std::array<unsigned, 4> marcas = {0, 0xC0, 0xE0, 0xF0};
    saida += static_cast<char>(marcas[continuacoes] | (c >> (6 * continuacoes)));
    for (int i = continuacoes - 1; i >= 0; --i) saida += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
}

// O caractere que começa em `lugar`, que avança para depois dele; um byte que não é UTF-8 dá `invalido` e conta
// sozinho.
char32_t tira_utf8(std::string_view texto, std::size_t& lugar) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(texto[i]); };
    const unsigned char primeiro = byte(lugar++);
    if (primeiro < 0x80) return primeiro;
    const int continuacoes = primeiro >= 0xC2 && primeiro <= 0xDF   ? 1
                             : primeiro >= 0xE0 && primeiro <= 0xEF ? 2
                             : primeiro >= 0xF0 && primeiro <= 0xF4 ? 3
                                                                    : 0;
    if (continuacoes == 0 || lugar + continuacoes > texto.size()) return invalido;
    char32_t c = primeiro & (0x3F >> continuacoes);
    for (int i = 0; i < continuacoes; ++i) {
        if ((byte(lugar + i) & 0xC0) != 0x80) return invalido;
        c = (c << 6) | (byte(lugar + i) & 0x3F);
    }
    // Formas longas demais, metades de pares e o que passa do último código não são caracteres.
    constexpr std::array<char32_t, 4> menor = {0, 0x80, 0x800, 0x10000};
    if (c < menor[continuacoes] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return invalido;
    lugar += continuacoes;
    return c;
}

char32_t maiuscula(char32_t c) {
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 0x20;
    if (c == 0xFF) return 0x178;
    if (c == 0x153 || c == 0x161 || c == 0x17E) return c - 1;
    return c;
}

} // namespace

std::string utf8_de_1252(std::string_view texto) {
    std::string saida;
    saida.reserve(texto.size() + texto.size() / 8);
    for (const char letra : texto) {
        const auto byte = static_cast<unsigned char>(letra);
        junta_utf8(saida, byte >= 0x80 && byte < 0xA0 ? faixa_1252[byte - 0x80] : byte);
    }
    return saida;
}

std::string cp1252_de_utf8(std::string_view texto) {
    std::string saida;
    saida.reserve(texto.size());
    for (std::size_t lugar = 0; lugar < texto.size();) {
        const char32_t c = tira_utf8(texto, lugar);
        const auto* achado = std::find(faixa_1252.begin(), faixa_1252.end(), c);
        if (achado != faixa_1252.end())
            saida += static_cast<char>(0x80 + (achado - faixa_1252.begin()));
        else
            saida += c < 0x80 || (c >= 0xA0 && c <= 0xFF) ? static_cast<char>(c) : '?';
    }
    return saida;
}

std::string texto_de_numero(long numero) {
    std::string saida = numero < 0 ? "" : " ";
    return saida += std::to_string(numero);
}

std::string maiusculas(std::string_view texto) {
    std::string saida;
    saida.reserve(texto.size());
    for (std::size_t lugar = 0; lugar < texto.size();) {
        const std::size_t antes = lugar;
        const char32_t c = tira_utf8(texto, lugar);
        if (c == invalido)
            saida += texto[antes];
        else
            junta_utf8(saida, maiuscula(c));
    }
    return saida;
}

} // namespace verdalia
