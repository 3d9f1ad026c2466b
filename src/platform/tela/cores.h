// Cores da casa: as mesmas das figuras, para que moldura, botão e texto combinem com elas.
#pragma once
#ifdef VERDALIA_REGRAS
#error "as regras não conhecem a tela: este cabeçalho é do andar de cima"
#endif

#include <cstdint>

namespace verdalia {

struct Cor {
    std::uint8_t r = 0, g = 0, b = 0, a = 255;
    friend bool operator==(const Cor&, const Cor&) = default;
};

inline constexpr Cor cor_transparente{0, 0, 0, 0};
inline constexpr Cor cor_tinta{0x5a, 0x36, 0x20};       // texto sobre papel
inline constexpr Cor cor_tinta_clara{0xff, 0xfa, 0xf0}; // texto sobre madeira
inline constexpr Cor cor_tinta_apagada{0x66, 0x53, 0x3f};
inline constexpr Cor cor_tinta_escura{0x14, 0x0c, 0x07}; // texto sobre cor viva
inline constexpr Cor cor_papel{0xfb, 0xed, 0xc4};
inline constexpr Cor cor_papel_claro{0xff, 0xfb, 0xe9};
inline constexpr Cor cor_papel_escuro{0xee, 0xd3, 0x9a};
inline constexpr Cor cor_madeira{0xbf, 0x87, 0x48};
inline constexpr Cor cor_madeira_clara{0xdc, 0xab, 0x6c};
inline constexpr Cor cor_madeira_escura{0x8f, 0x5a, 0x2a};
inline constexpr Cor cor_ouro{0xf2, 0xc9, 0x4c};
inline constexpr Cor cor_ligacao{0x1f, 0x5f, 0x99}; // palavra quente
inline constexpr Cor cor_foco{0x1f, 0x5f, 0x99};
inline constexpr Cor cor_grama{0x86, 0xba, 0x46};
inline constexpr Cor cor_previsao{0x6d, 0x46, 0xa8}; // o que ainda não aconteceu

// Quanto duas cores se distinguem, de 1 (nada) a 21; um texto pede pelo menos 4,5.
double contraste(Cor a, Cor b);
// A tinta, escura ou clara, que melhor se lê sobre o fundo.
Cor tinta_sobre(Cor fundo);

} // namespace verdalia
