#include "platform/tela/folhas.h"

#include "platform/base/caminhos.h"
#include "platform/base/texto.h"

#include <algorithm>
#include <hpdf.h>
#include <stdexcept>

namespace verdalia {

namespace {

constexpr const char* letras[] = {"\\fontes\\Andika-Regular.ttf", "\\fontes\\Andika-Bold.ttf"}; // por `negrito`

float pontos(double milimetros) {
    return static_cast<float>(milimetros * 72 / 25.4);
}

float pontos_de_baixo(double y) {
    return pontos(Folhas::altura - y);
}

} // namespace

// A libharu guarda o primeiro erro e recusa o que vem depois: basta perguntar no fim.
struct Folhas::Partes {
    Partes() : pdf(HPDF_New(nullptr, nullptr)) {
        if (pdf == nullptr) throw std::runtime_error("Falta memória para fazer o relatório.");
    }
    Partes(const Partes&) = delete;
    Partes& operator=(const Partes&) = delete;
    ~Partes() { HPDF_Free(pdf); }

    HPDF_Font abre_letra(const char* caminho) const {
        const auto arquivo = acha(caminho);
        const char* nome = arquivo ? HPDF_LoadTTFontFromFile(pdf, arquivo->c_str(), HPDF_TRUE) : nullptr;
        if (nome == nullptr) throw std::runtime_error(std::string("O arquivo de letras não pôde ser lido: ") + caminho);
        return HPDF_GetFont(pdf, nome, "WinAnsiEncoding");
    }

    HPDF_Doc pdf;
    HPDF_Font fontes[2] = {nullptr, nullptr};
    std::vector<HPDF_Page> folhas;
    HPDF_Page folha = nullptr; // a que se desenha
};

Folhas::Folhas(const std::string& titulo) : partes(std::make_unique<Partes>()) {
    HPDF_SetCompressionMode(partes->pdf, HPDF_COMP_ALL);
    HPDF_SetInfoAttr(partes->pdf, HPDF_INFO_TITLE, cp1252_de_utf8(titulo).c_str());
    for (const bool negrito : {false, true}) partes->fontes[negrito] = partes->abre_letra(letras[negrito]);
}

Folhas::~Folhas() = default;

void Folhas::nova_folha() {
    partes->folha = HPDF_AddPage(partes->pdf);
    HPDF_Page_SetSize(partes->folha, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
    partes->folhas.push_back(partes->folha);
}

int Folhas::quantas() const {
    return static_cast<int>(partes->folhas.size());
}

void Folhas::vai_a(int folha) {
    partes->folha = partes->folhas.at(static_cast<std::size_t>(folha));
}

double Folhas::mede(std::string_view texto, const LetraImpressa& letra) const {
    const std::string escrito = cp1252_de_utf8(texto);
    const HPDF_TextWidth medida =
        HPDF_Font_TextWidth(partes->fontes[letra.negrito], reinterpret_cast<const HPDF_BYTE*>(escrito.data()),
                            static_cast<HPDF_UINT>(escrito.size()));
    return medida.width * letra.corpo / 1000 * 25.4 / 72;
}

std::vector<std::string> Folhas::quebra(std::string_view texto, const LetraImpressa& letra, double faixa) const {
    std::vector<std::string> linhas;
    while (!texto.empty()) {
        const std::string_view palavra = texto.substr(0, texto.find(' '));
        texto.remove_prefix(std::min(texto.size(), palavra.size() + 1));
        const std::string junta = linhas.empty() ? std::string(palavra) : linhas.back() + ' ' + std::string(palavra);
        if (linhas.empty() || mede(junta, letra) > faixa)
            linhas.emplace_back(palavra);
        else
            linhas.back() = junta;
    }
    return linhas;
}

void Folhas::escreve(std::string_view texto, double x, double y, double faixa, LetraImpressa letra, Alinha alinha) {
    if (texto.empty() || faixa <= 0) return;
    double comprimento = mede(texto, letra);
    if (comprimento > faixa) {
        letra.corpo *= faixa / comprimento;
        comprimento = faixa;
    }
    if (alinha == Alinha::centro) x += (faixa - comprimento) / 2;
    if (alinha == Alinha::direita) x += faixa - comprimento;
    HPDF_Page_BeginText(partes->folha);
    HPDF_Page_SetFontAndSize(partes->folha, partes->fontes[letra.negrito], static_cast<float>(letra.corpo));
    HPDF_Page_TextOut(partes->folha, pontos(x), pontos_de_baixo(y), cp1252_de_utf8(texto).c_str());
    HPDF_Page_EndText(partes->folha);
}

void Folhas::traco(double x1, double y1, double x2, double y2, double grossura) {
    HPDF_Page_SetLineWidth(partes->folha, static_cast<float>(grossura));
    HPDF_Page_MoveTo(partes->folha, pontos(x1), pontos_de_baixo(y1));
    HPDF_Page_LineTo(partes->folha, pontos(x2), pontos_de_baixo(y2));
    HPDF_Page_Stroke(partes->folha);
}

void Folhas::moldura(const Retangulo& r, double grossura) {
    HPDF_Page_SetLineWidth(partes->folha, static_cast<float>(grossura));
    HPDF_Page_Rectangle(partes->folha, pontos(r.x), pontos_de_baixo(r.y + r.altura), pontos(r.largura),
                        pontos(r.altura));
    HPDF_Page_Stroke(partes->folha);
}

void Folhas::fundo(const Retangulo& r, double cinza) {
    HPDF_Page_SetGrayFill(partes->folha, static_cast<float>(cinza));
    HPDF_Page_Rectangle(partes->folha, pontos(r.x), pontos_de_baixo(r.y + r.altura), pontos(r.largura),
                        pontos(r.altura));
    HPDF_Page_Fill(partes->folha);
    HPDF_Page_SetGrayFill(partes->folha, 0);
}

void Folhas::forma(std::span<const Ponto> p, double grossura, double cinza) {
    HPDF_Page_SetLineWidth(partes->folha, static_cast<float>(grossura));
    HPDF_Page_SetGrayFill(partes->folha, static_cast<float>(cinza));
    HPDF_Page_MoveTo(partes->folha, pontos(p[0].x), pontos_de_baixo(p[0].y));
    for (std::size_t i = 1; i + 2 < p.size(); i += 3)
        HPDF_Page_CurveTo(partes->folha, pontos(p[i].x), pontos_de_baixo(p[i].y), pontos(p[i + 1].x),
                          pontos_de_baixo(p[i + 1].y), pontos(p[i + 2].x), pontos_de_baixo(p[i + 2].y));
    HPDF_Page_ClosePathFillStroke(partes->folha);
    HPDF_Page_SetGrayFill(partes->folha, 0);
}

std::string Folhas::bytes() {
    HPDF_SaveToStream(partes->pdf);
    std::string saida(HPDF_GetStreamSize(partes->pdf), '\0');
    HPDF_ResetStream(partes->pdf);
    auto lidos = static_cast<HPDF_UINT32>(saida.size());
    HPDF_ReadFromStream(partes->pdf, reinterpret_cast<HPDF_BYTE*>(saida.data()), &lidos);
    if (HPDF_GetError(partes->pdf) != HPDF_OK || lidos != saida.size())
        throw std::runtime_error("O relatório não pôde ser desenhado (erro " +
                                 std::to_string(HPDF_GetError(partes->pdf)) + ").");
    return saida;
}

} // namespace verdalia
