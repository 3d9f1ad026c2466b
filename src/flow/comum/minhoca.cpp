#include "flow/comum/minhoca.h"

#include "data/estado.h"

#include <array>

namespace verdalia {

namespace {

constexpr double puxada = 50 * twip;
constexpr double volta_em = 2400 * twip;
constexpr double vai_em = 10200 * twip;

} // namespace

void passo_da_minhoca(Figura& pic_nhoca, std::int16_t& quadro, bool& esquerda) {
    const bool anda = quadro > 3;
    const int passo = anda ? 6 - quadro : quadro;
    if (anda) pic_nhoca.esquerda += esquerda ? -puxada : puxada;
    static std::array<std::array<ImagemRef, 4>, 2> quadros; // são poucos, e ela anda o tempo todo
    ImagemRef& figura = quadros[esquerda ? 1 : 0][static_cast<std::size_t>(passo)];
    troca_figura(figura, dir_media + (esquerda ? "\\anima\\nhoca" : "\\anima\\nh") + std::to_string(passo) + "p.bmp");
    pic_nhoca.figura = figura;
    if (esquerda && pic_nhoca.esquerda < volta_em)
        esquerda = false;
    else if (!esquerda && pic_nhoca.esquerda > vai_em)
        esquerda = true;
    quadro = static_cast<std::int16_t>((quadro + 1) % 7);
}

} // namespace verdalia
