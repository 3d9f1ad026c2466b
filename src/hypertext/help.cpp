#include "hypertext/help.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/minhoca.h"
#include "hypertext/regras/motor.h"
#include "hypertext/tabelas.h"
#include "platform/base/caminhos.h"
#include "platform/base/texto.h"
#include "platform/tela/impressora.h"
#include "platform/tela/som.h"

#include <SDL.h>
#include <algorithm>
#include <stdexcept>
#include <utility>

namespace verdalia {

using namespace ajuda_tabelas;

namespace {

constexpr Cor cor_do_texto{0, 0, 255}, cor_da_ligacao{255, 0, 0};
constexpr int linhas_por_roda = 3;
constexpr double borda = 8;               // da folha, em pixels, onde não se imprime
constexpr double pe = 16;                 // e a linha que começa no fim do quadro ainda cabe inteira
constexpr std::size_t maior_pedaco = 32;  // bytes que se imprimem de uma vez, mais uma palavra
constexpr std::size_t o_que_se_ve = 1000; // bytes de uma palavra; o que passa disto está fora da folha

// O que se lê de um pedaço do documento: os códigos que não são letra viram brancos.
std::string legivel(std::string_view bytes) {
    std::string texto(bytes.substr(0, o_que_se_ve));
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return utf8_de_1252(texto);
}

// A folha como o motor a quer. O que se imprime em seguida e do mesmo jeito vai junto, que se pinta mais depressa do
// que palavra por palavra; mas não a linha inteira, que no tamanho da janela não mede exatamente o mesmo.
struct QuadroDaFolha : Quadro {
    explicit QuadroDaFolha(CaixaImpressao& caixa) : folha(caixa) { negrito = true; }
    QuadroDaFolha(const QuadroDaFolha&) = delete;
    QuadroDaFolha& operator=(const QuadroDaFolha&) = delete;
    ~QuadroDaFolha() override { despeja(); }

    double largura_do_texto(std::string_view texto) override { return largura_texto(legivel(texto), letra()) / twip; }
    double altura_da_linha() override { return altura_linha(letra()) / twip; }
    double largura_interna() override { return (folha.largura - 2 * borda) / twip; }
    double altura_interna() override { return (folha.altura - 2 * borda - pe) / twip; }
    void limpa() override {
        junto.clear();
        folha.limpa();
        x = y = 0;
    }
    void imprime(std::string_view texto) override {
        const Letra agora = letra();
        const bool continua = x == fim_x && y == fim_y && agora.cor == folha.letra.cor &&
                              agora.corpo == folha.letra.corpo && junto.size() < maior_pedaco;
        if (!continua) {
            despeja();
            folha.letra = agora;
            folha.pos_x = borda + x * twip;
            folha.pos_y = borda + y * twip;
        }
        junto += legivel(texto);
        x += largura_do_texto(texto);
        fim_x = x;
        fim_y = y;
    }

private:
    Letra letra() const {
        return {.corpo = corpo,
                .negrito = negrito,
                .sublinhado = sublinhado,
                .cor = vermelho ? cor_da_ligacao : cor_do_texto};
    }
    void despeja() {
        if (!junto.empty()) folha.imprime(junto);
        junto.clear();
    }

    CaixaImpressao& folha;
    std::string junto;
    double fim_x = -1, fim_y = -1;
};

} // namespace

void FolhaDaAjuda::roda(int passos) {
    barra->roda(linhas_por_roda * passos);
}

void FaixaDaAjuda::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, 8, 4, cor_madeira, cor_papel_claro);
}

help::help() : Tela("help"), animacao{*this, timer_, series} {}

void help::Form_Load() {
    arruma(*this, lugares);
    ponteiro = ponteiro_seta;
    faixa.atravessa = true;
    theLabel1.quente = true;
    theLabel1.letra = {.familia = Familia::legenda, .corpo = 13, .negrito = true};
    theLabel1.ponteiro = pic_nhoca.ponteiro = ponteiro_mao;
    theLabel1.clique = [this] { thelabel1_Click(); };
    pic_nhoca.clique = [this] { pic_nhoca_Click(); };
    imagespicturebox.clique = [this] { imagespicturebox_Click(); };
    imagespicturebox.ponteiro = ponteiro_mao;
    imagespicturebox.visivel = false;
    TextPictureBox.barra = &TextVScroll;
    TextPictureBox.so_do_mouse = true;
    TextPictureBox.botao = [this](const Mouse& m) {
        TextPictureBox_MouseDown(m.botao, 0, (m.x - borda) / twip, (m.y - borda) / twip);
    };
    // A folha não tem dica: aproveita-se que ela é perguntada a cada movimento do mouse.
    TextPictureBox.dica_viva = [this](double x, double y) {
        TextPictureBox_MouseMove(0, 0, (x - borda) / twip, (y - borda) / twip);
        return std::string();
    };
    TextVScroll.muda = [this] { TextVScroll_Change(); };
    timer_.dispara = [this] { Timer__Timer(); };
    // O texto rola pelo teclado esteja o foco onde estiver.
    const auto rola = [this](const Tecla& t) { return TextVScroll.interage() && TextVScroll.teclado(t); };
    for (Controle* c : {static_cast<Controle*>(&theLabel1), static_cast<Controle*>(&pic_nhoca),
                        static_cast<Controle*>(&imagespicturebox)})
        c->tecla = rola;
    foco = &TextVScroll;

    abre_documento();
    TextPictureBox.ponteiro = ponteiro = ponteiro_cruz;
    abre_primeiro_topico();
    pic_nhoca.figura = carrega_figura(dir_media + "\\anima\\nhoca0p.bmp");
    fundo = carrega_figura("\\back_in.jpg");
    TextPictureBox.figura = carrega_figura("\\textura.jpg");
}

// O documento se compila a cada abertura: o texto é que é o original.
void help::abre_documento() {
    n_topicos = 0;
    fecha_hipertexto();
    const auto* d = std::find_if(std::begin(documentos), std::end(documentos),
                                 [](const Documento& linha) { return topico_help == linha.topico_help; });
    if (d == std::end(documentos)) return;
    try {
        compila_texto(d->fonte);
        abre_hipertexto(d->aberto_como);
    } catch (const std::runtime_error& erro) {
        o_que_falhou = erro.what();
    }
}

void help::Form_Activate() {
    if (!o_que_falhou.empty())
        avisa("Atenção ...", std::exchange(o_que_falhou, "") + " A ajuda fica em branco; \"Retornar\" volta ao jogo.");
}

void help::Form_Click() {
    if (!TextPictureBox.visivel) imagespicturebox_Click();
}

void help::mostra_topico(const std::string& topico) {
    {
        QuadroDaFolha quadro(TextPictureBox);
        n_linhas = static_cast<std::int16_t>(quebra_linhas(topico, quadro));
        const int altura = static_cast<int>(quadro.altura_interna()) / static_cast<int>(quadro.altura_da_linha());
        TextVScroll.minimo = 0;
        TextVScroll.passo = 1;
        TextVScroll.pagina = std::max(1, std::min(altura - 2, n_linhas - 1));
        TextVScroll.maximo = std::max(n_linhas - altura, 0);
    }
    TextVScroll.valor = 0;
    TextVScroll_Change();
}

void help::abre_primeiro_topico() {
    mostra_topico(n_topicos > 0 ? indice[1].topico : "");
}

void help::TextVScroll_Change() {
    primeira_linha = static_cast<std::int16_t>(TextVScroll.valor);
    TextPictureBox_Paint();
}

void help::TextPictureBox_Paint() {
    {
        QuadroDaFolha quadro(TextPictureBox);
        desenha_linhas(quadro, primeira_linha, n_linhas);
    }
    refaz_ligacoes();
}

// Uma peça invisível por zona, onde o foco do teclado para; lê-se linha por linha, e depois o que está em volta.
void help::refaz_ligacoes() {
    const bool tinha_o_foco = foco != nullptr && foco->nome == ligacao.nome;
    while (!ligacao.elementos.empty()) ligacao.destroi(ligacao.elementos.begin()->first);
    paineis.clear();
    int ultimo_topo = -1;
    for (int i = 1; i <= n_zonas_tela; ++i) {
        const Zona& z = zonas[i];
        Figura& peca = ligacao.cria(i);
        peca.pai = &TextPictureBox;
        peca.atravessa = true;
        const double x = borda + z.esq * twip, y = borda + z.topo * twip, alto = (z.base - z.topo) * twip;
        peca.fica_em({x, y, std::min((z.dir - z.esq) * twip, TextPictureBox.largura - x), alto});
        peca.clique = [this, alvo = z.alvo] { segue_ligacao(alvo); };
        peca.tecla = [this](const Tecla& t) { return TextVScroll.interage() && TextVScroll.teclado(t); };
        if (z.topo != ultimo_topo)
            paineis.push_back({TextPictureBox.esquerda, TextPictureBox.topo + y, TextPictureBox.largura, alto});
        ultimo_topo = z.topo;
    }
    paineis.push_back({0, 0, TextVScroll.esquerda, altura_logica});
    if (tinha_o_foco) foco = TextVScroll.interage() ? &TextVScroll : nullptr;
}

void help::TextPictureBox_MouseMove(int, int, double X, double Y) {
    TextPictureBox.ponteiro = sobre_zona(X, Y) ? ponteiro_mao : ponteiro_normal;
}

void help::TextPictureBox_MouseDown(int, int, double X, double Y) {
    const std::string alvo = zona_em(X, Y);
    if (alvo.empty()) return;
    TextPictureBox.ponteiro = ponteiro_ampulheta;
    segue_ligacao(alvo);
    TextPictureBox.ponteiro = ponteiro_normal;
}

void help::segue_ligacao(const std::string& alvo) {
    timer_.intervalo = 0;
    animacao.em_curso = nullptr; // a ilustração fica no quadro em que está
    anim_topico = 0;
    if (alvo.size() >= 4 && alvo[alvo.size() - 4] == '.') return segue_arquivo(utf8_de_1252(alvo));
    const std::string topico = alvo;
    mostra_topico(topico);
    ilustra_topico(topico);
}

namespace {

// Um arquivo comum das mídias ou da pasta do programa; uma ligação não sai delas.
bool existe(const std::string& caminho) {
    const std::string unidade = maiusculas(caminho.substr(0, 2));
    if (unidade != maiusculas(dir_media) && unidade != letras_de_unidade[0]) return false;
    const auto achado = acha(caminho);
    std::error_code erro;
    return achado && std::filesystem::is_regular_file(*achado, erro);
}

} // namespace

void help::segue_arquivo(const std::string& alvo) {
    const std::string caminho = alvo[1] == ':' ? alvo : dir_media + alvo;
    if (!existe(caminho)) return avisa("Hyperlink Error", "Unable to locate media file " + caminho);
    const std::string tipo = maiusculas(caminho.substr(caminho.size() - 3));
    if (tipo == "MID" || tipo == "WAV") return mciExecute("Play " + caminho);
    if (tipo == "BMP" || tipo == "JPG") return abre_figura(caminho);
    if (tipo != "AVI") return avisa("Hyperlink Error", "Unknown media file type " + caminho);
    if (!abre_no_visor(*acha(caminho)))
        avisa("Hyperlink Error", "Não há neste computador um programa que mostre o vídeo " + caminho + ".");
}

void help::abre_figura(const std::string& caminho) {
    const ImagemRef figura = carrega_figura(caminho);
    if (figura->falta) return avisa("Hyperlink Error", "Unable to locate media file " + caminho);
    imagespicturebox.figura = figura;
    // Os arquivos têm o dobro do tamanho; o que ainda assim não cabe na tela se encolhe.
    const double encolhe = std::min({0.5, largura / figura->largura, altura / figura->altura});
    const double l = figura->largura * encolhe, a = figura->altura * encolhe;
    imagespicturebox.fica_em({(largura - l) / 2, (altura - a) / 2, l, a});
    mostra_texto(false);
    imagespicturebox.visivel = true;
    foco = &imagespicturebox;
}

void help::mostra_texto(bool mostra) {
    faixa.visivel = TextPictureBox.visivel = TextVScroll.visivel = mostra;
}

void help::ilustra_topico(const std::string& topico) {
    const std::string nome = utf8_de_1252(topico);
    const auto* linha = std::find_if(std::begin(ilustracoes), std::end(ilustracoes),
                                     [&nome](const Ilustracao& i) { return nome == i.topico; });
    imagespicturebox.visivel = linha != std::end(ilustracoes);
    if (!imagespicturebox.visivel) return;
    anim_topico = linha->acao;
    const std::string figura = linha->figura == nullptr ? fig_dia_semana() : linha->figura;
    const bool das_midias = figura.starts_with("\\anima\\");
    imagespicturebox.figura = carrega_figura(das_midias ? dir_media + figura : figura);
    // As verduras, desenhadas para a casa de um canteiro, mostram-se aqui no dobro do tamanho.
    const double escala = imagespicturebox.figura->largura < largura_da_faixa ? 1 : 0.5;
    const double l = imagespicturebox.figura->largura * escala, a = imagespicturebox.figura->altura * escala;
    imagespicturebox.fica_em({(largura_da_faixa - l) / 2, topo_da_ilustracao, l, a});
}

void help::imagespicturebox_Click() {
    if (anim_topico != 0) return animacao.comeca(anim_topico);
    imagespicturebox.visivel = false;
    mostra_texto(true);
    foco = TextVScroll.interage() ? &TextVScroll : nullptr;
}

void help::pic_nhoca_Click() {
    animacao.em_curso = nullptr; // a ilustração fica no quadro em que está
    anim_acao = acao_da_minhoca;
    timer_.intervalo = intervalo_da_animacao;
    nhoca_passos = passos_da_minhoca;
}

void help::thelabel1_Click() {
    theLabel1.ponteiro = ponteiro_ampulheta;
    fecha_hipertexto();
    descarrega(*this);
    const auto* volta =
        std::find_if(std::begin(voltas), std::end(voltas), [](const Volta& v) { return tela_origem == v.tela_origem; });
    mostra(volta == std::end(voltas) ? volta_das_outras : volta->tela);
}

void help::Timer__Timer() {
    if (timer_.intervalo == 0) return;
    if (anim_acao != acao_da_minhoca) return animacao.tique();
    passo_da_minhoca(pic_nhoca, nhoca_quadro, nhoca_esquerda);
    if (--nhoca_passos == 0) timer_.intervalo = 0;
}

} // namespace verdalia
