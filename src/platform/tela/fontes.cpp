#include "platform/tela/fontes.h"

#include "platform/base/caminhos.h"

#include <cmath>
#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>

namespace verdalia {

namespace {

constexpr const char* arquivos[2][2] = {
    {"\\fontes\\LiberationSans-Regular.ttf", "\\fontes\\LiberationSans-Bold.ttf"},
    {"\\fontes\\Andika-Regular.ttf", "\\fontes\\Andika-Bold.ttf"},
};

// As medidas se fazem neste aumento, para que não dependam do tamanho da janela.
constexpr double aumento_da_medida = 4;

std::map<int, TTF_Font*> abertas; // chave: família, negrito e pixels

// Um arquivo pode abrir-se e não ter as letras, por estar cortado.
bool tem_letras(TTF_Font* aberta) {
    int largura = 0;
    return TTF_SizeUTF8(aberta, "AZazãç09", &largura, nullptr) == 0 && largura > 0;
}

TTF_Font* abre(const char* nome, int pixels) {
    const auto achado = acha(nome);
    if (TTF_Font* aberta = achado ? TTF_OpenFont(achado->c_str(), pixels) : nullptr) {
        TTF_SetFontKerning(aberta, 0);
        TTF_SetFontHinting(aberta, TTF_HINTING_LIGHT_SUBPIXEL);
        if (tem_letras(aberta)) return aberta;
        TTF_CloseFont(aberta);
    }
    static std::set<std::string> ja_ditos; // uma linha por arquivo, mesmo que se peça em cada tamanho
    if (ja_ditos.insert(nome).second) std::fprintf(stderr, "verdalia: letras que não puderam ser lidas: %s\n", nome);
    return nullptr;
}

// O arquivo que falta, ou está estragado, é suprido pelo do outro peso, ou pelos da outra família.
TTF_Font* abre_a_melhor(const Letra& letra, int pixels) {
    const bool legenda = letra.familia == Familia::legenda;
    for (const bool outra_familia : {false, true})
        for (const bool outro_peso : {false, true})
            if (TTF_Font* aberta = abre(arquivos[legenda != outra_familia][letra.negrito != outro_peso], pixels))
                return aberta;
    throw std::runtime_error("Nenhum arquivo de letras do jogo pôde ser lido. Instale o jogo de novo.");
}

} // namespace

void abre_fontes() {
    if (TTF_WasInit() == 0 && TTF_Init() != 0)
        throw std::runtime_error(std::string("As letras não puderam ser abertas: ") + TTF_GetError());
    // Um arquivo estragado se descobre agora, e não no meio da partida.
    for (const Familia familia : {Familia::leitura, Familia::legenda})
        for (const bool negrito : {false, true}) fonte({.familia = familia, .negrito = negrito}, 1);
}

void esquece_tamanhos() {
    for (auto& [chave, aberta] : abertas) TTF_CloseFont(aberta);
    abertas.clear();
}

void fecha_fontes() {
    esquece_tamanhos();
    if (TTF_WasInit() != 0) TTF_Quit();
}

TTF_Font* fonte(const Letra& letra, double escala) {
    const int pixels = std::max(4, static_cast<int>(std::lround(letra.corpo * 4 / 3 * escala)));
    const int chave = (pixels << 2) | (static_cast<int>(letra.familia) << 1) | static_cast<int>(letra.negrito);
    auto lugar = abertas.find(chave);
    if (lugar == abertas.end()) lugar = abertas.emplace(chave, abre_a_melhor(letra, pixels)).first;
    TTF_SetFontStyle(lugar->second, letra.sublinhado ? TTF_STYLE_UNDERLINE : TTF_STYLE_NORMAL);
    return lugar->second;
}

double largura_texto(std::string_view texto, const Letra& letra) {
    int largura = 0;
    TTF_SizeUTF8(fonte(letra, aumento_da_medida), std::string(texto).c_str(), &largura, nullptr);
    return largura / aumento_da_medida;
}

namespace {

// Quantos bytes do começo do texto, em letras inteiras, cabem na largura; pelo menos uma letra.
std::size_t quanto_cabe(std::string_view texto, const Letra& letra, double largura) {
    std::size_t cabe = 0;
    for (std::size_t i = 1; i <= texto.size(); ++i) {
        const bool fim_de_letra = i == texto.size() || (static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80;
        if (!fim_de_letra) continue;
        if (cabe > 0 && largura_texto(texto.substr(0, i), letra) > largura) break;
        cabe = i;
    }
    return cabe;
}

} // namespace

double altura_linha(const Letra& letra) {
    return TTF_FontLineSkip(fonte(letra, aumento_da_medida)) / aumento_da_medida;
}

std::vector<std::string> quebra_linhas(std::string_view texto, const Letra& letra, double largura) {
    std::vector<std::string> linhas{""};
    std::size_t i = 0;
    while (i < texto.size()) {
        if (texto[i] == '\n') {
            linhas.emplace_back();
            ++i;
            continue;
        }
        // Uma palavra leva consigo os brancos que vêm antes dela: assim os brancos dobrados se conservam.
        std::size_t fim = texto.find_first_not_of(' ', i);
        fim = fim == std::string_view::npos ? texto.size() : texto.find_first_of(" \n", fim);
        if (fim == std::string_view::npos) fim = texto.size();
        const std::string_view palavra = texto.substr(i, fim - i);
        const std::string junta = linhas.back() + std::string(palavra);
        if (linhas.back().empty() || largura_texto(junta, letra) <= largura) {
            linhas.back() = junta;
        } else {
            const std::size_t letra_1 = palavra.find_first_not_of(' ');
            linhas.emplace_back(letra_1 == std::string_view::npos ? "" : palavra.substr(letra_1));
        }
        while (largura_texto(linhas.back(), letra) > largura) {
            const std::size_t cabe = quanto_cabe(linhas.back(), letra, largura);
            if (cabe == linhas.back().size()) break;
            std::string resto = linhas.back().substr(cabe);
            linhas.back().resize(cabe);
            linhas.push_back(std::move(resto));
        }
        i = fim;
    }
    return linhas;
}

} // namespace verdalia
