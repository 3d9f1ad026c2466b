// O hospedeiro dos testes: um roteiro no lugar do jogador, um relógio que só anda quando o laço dorme, um registro no
// lugar do som e uma superfície no lugar da janela. Uma apresentação de 12 segundos passa em microssegundos.
#pragma once

#include "apoio.h"
#include "data/plano.h"
#include "fabricas.h"
#include "flow/comum/saida.h"
#include "platform/tela/laco.h"

#include <SDL.h>
#include <deque>

namespace verdalia {

struct Roteiro : Hospedeiro {
    explicit Roteiro(RelogioDeTeste& relogio_do_teste, int escala = 1) : tempo(relogio_do_teste) {
        janela.reset(SDL_CreateRGBSurfaceWithFormat(0, largura_logica * escala, altura_logica * escala, 32,
                                                    SDL_PIXELFORMAT_XRGB8888));
        hospedeiro = this;
    }
    ~Roteiro() override { hospedeiro = nullptr; }

    // O que o jogador faz, na ordem. Um controle é procurado na tela ativa quando chega a vez do passo.
    Roteiro& clica(const char* nome, int indice = -1, int botao = 1) {
        return passo([=, this] {
            if (Controle* c = acha_controle(nome, indice)) clica_no_ponto(meio(*c), botao);
        });
    }
    Roteiro& clica_em(double x, double y) {
        return passo([=, this] { clica_no_ponto({x, y}, 1); });
    }
    // Dois cliques seguidos, mais depressa do que se clica duas vezes de propósito.
    Roteiro& clica_duplo(const char* nome, int indice = -1) {
        return passo([=, this] {
            if (Controle* c = acha_controle(nome, indice))
                for (int i = 0; i < 2; ++i) clica_agora(meio(*c), 1);
        });
    }
    // Leva o mouse a um ponto e o deixa lá.
    Roteiro& aponta(double x, double y) {
        return passo([=, this] { agora({mouse(Evento::move, {x, y})}); });
    }
    Roteiro& aperta(double x, double y, int botao) {
        return passo([=, this] { agora({mouse(Evento::move, {x, y}), mouse(Evento::aperta, {x, y}, botao)}); });
    }
    Roteiro& solta(double x, double y, int botao) {
        return passo([=, this] { agora({mouse(Evento::solta, {x, y}, botao)}); });
    }
    // Leva um controle até um ponto em pixels lógicos da janela, em dois movimentos.
    Roteiro& arrasta(const char* nome, int indice, double x, double y) {
        return passo([=, this] {
            if (Controle* c = acha_controle(nome, indice)) arrasta_agora(meio(*c), {x, y});
        });
    }
    Roteiro& roda(int passos) {
        return passo([=, this] { agora({Evento{.tipo = Evento::roda, .botao = passos}}); });
    }
    Roteiro& tecla(int codigo, bool maiuscula = false) {
        return passo([=, this] {
            agora({Evento{.tipo = Evento::tecla, .tecla_apertada = {codigo, maiuscula, false, false}}});
        });
    }
    Roteiro& teclas(std::initializer_list<int> codigos) {
        for (const int codigo : codigos) tecla(codigo);
        return *this;
    }
    Roteiro& escreve(const char* letras) {
        return passo([=, this] { agora({Evento{.tipo = Evento::texto, .escrito = letras}}); });
    }
    Roteiro& fecha_janela() { return so_um(Evento::fecha); }
    Roteiro& encerra() { return so_um(Evento::encerra); }
    Roteiro& espera_ms(std::int64_t ms) {
        return passo([=, this] { acorda_em = tempo.ms + ms; });
    }
    Roteiro& confere(std::function<void()> teste) { return passo(std::move(teste)); }
    // Confere que a tela ativa é essa.
    Roteiro& esta_em(const char* nome) {
        return passo([=] {
            ASSERT_NE(tela_ativa(), nullptr);
            EXPECT_EQ(tela_ativa()->nome, nome);
        });
    }

    // O programa acaba antes deste passo.
    Roteiro& acabou() {
        fim_previsto = true;
        return confere([] { FAIL() << "o jogo devia ter acabado"; });
    }
    // O aviso, "título|mensagem", que se fecha; a pergunta, que se responde; o quadro, que se lê.
    Roteiro& aviso(std::string esperado) { return diz("ok", std::move(esperado)).clica("opções"); }
    Roteiro& pergunta(const char* esperada, bool sim) {
        return diz("form_ok_nao", esperada).clica("opções", sim ? 0 : 1);
    }
    Roteiro& quadro(const char* titulo) {
        return esta_em("ok_help")
            .confere([=] {
                EXPECT_EQ(tela_ativa()->titulo, titulo);
                EXPECT_FALSE(tela_ativa()->fundo->falta) << titulo;
            })
            .tecla(SDLK_ESCAPE);
    }

    // Nenhum passo ficou por dar, senão os de depois do fim.
    bool feito() const { return fim_previsto || passos.empty(); }

    bool proximo(Evento& e) override {
        while (eventos.empty()) {
            if (tempo.ms < acorda_em || passos.empty()) return false;
            const auto vez = std::move(passos.front());
            passos.pop_front();
            vez();
        }
        e = eventos.front();
        eventos.pop_front();
        return true;
    }
    bool espera(std::int64_t ms) override {
        ++esperas;
        if (tempo.ms >= acorda_em && passos.empty()) return false; // fim do roteiro
        const std::int64_t falta = acorda_em - tempo.ms;
        const std::int64_t passam = ms < 0 ? falta : std::min(ms, falta);
        if (dorme) SDL_Delay(static_cast<Uint32>(passam));
        tempo.ms += passam;
        return true;
    }
    SDL_Surface* superficie() override { return janela.get(); }
    void apresenta(const SDL_Rect& area) override {
        ++pinturas;
        mudou = area;
    }
    void mostra_ponteiro(int) override {}
    void troca_tela_cheia() override {}
    int toca(const std::string& caminho) override {
        tocados.push_back(caminho);
        return aparelho ? aparelho(caminho) : duracao_dos_sons;
    }

    std::vector<std::string> tocados;
    int duracao_dos_sons = 0;
    std::function<int(const std::string&)> aparelho{}; // quando há, é ele que toca e diz a duração
    int pinturas = 0;
    SDL_Rect mudou{}; // na última
    int esperas = 0;
    bool dorme = false; // o tempo passa de verdade: espera-se por outro programa
    Superficie janela;

private:
    struct Ponto {
        double x, y;
    };
    Roteiro& diz(const char* caixa, std::string esperado) {
        return esta_em(caixa).confere([=] { EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, esperado); });
    }
    Roteiro& so_um(Evento::Tipo tipo) {
        return passo([=, this] { agora({Evento{.tipo = tipo}}); });
    }
    Roteiro& passo(std::function<void()> p) {
        passos.push_back(std::move(p));
        return *this;
    }
    void agora(std::initializer_list<Evento> novos) { eventos.insert(eventos.end(), novos); }
    static Controle* acha_controle(const char* nome, int indice) {
        Tela* t = tela_ativa();
        Controle* c = t != nullptr ? t->controle(nome, indice) : nullptr;
        EXPECT_NE(c, nullptr) << "não há " << nome << '(' << indice << ") em " << (t != nullptr ? t->nome : "nenhuma");
        return c;
    }
    static Ponto meio(const Controle& c) {
        const Retangulo r = c.lugar();
        return {c.dona.origem_x() + r.x + r.largura / 2, c.dona.origem_y() + r.y + r.altura / 2};
    }
    Evento mouse(Evento::Tipo tipo, Ponto p, int botao = 1) const {
        const double escala = double(janela->w) / largura_logica;
        return {.tipo = tipo, .x = static_cast<int>(p.x * escala), .y = static_cast<int>(p.y * escala), .botao = botao};
    }
    void arrasta_agora(Ponto de, Ponto para) {
        agora({mouse(Evento::move, de), mouse(Evento::aperta, de),
               mouse(Evento::move, {(de.x + para.x) / 2, (de.y + para.y) / 2}), mouse(Evento::move, para),
               mouse(Evento::solta, para)});
    }
    void clica_agora(Ponto p, int botao) {
        agora({mouse(Evento::move, p), mouse(Evento::aperta, p, botao), mouse(Evento::solta, p, botao)});
    }
    // Quem clica outra vez no mesmo ponto espera um pouco, para que não seja um clique duplo.
    void clica_no_ponto(Ponto p, int botao) {
        const bool mesmo_ponto = std::abs(p.x - clicou.x) + std::abs(p.y - clicou.y) < 8;
        if (mesmo_ponto && tempo.ms - clicou_em < 400) {
            acorda_em = clicou_em + 400;
            passos.push_front([=, this] { clica_no_ponto(p, botao); });
            return;
        }
        clicou = p;
        clicou_em = tempo.ms;
        clica_agora(p, botao);
    }

    RelogioDeTeste& tempo;
    std::deque<std::function<void()>> passos;
    std::deque<Evento> eventos;
    std::int64_t acorda_em = 0;
    Ponto clicou{-100, -100};
    std::int64_t clicou_em = 0;
    bool fim_previsto = false;
};

// Uma partida com as mídias construídas e o laço zerado; `roteiro` é o jogador.
struct PartidaNaTela : Partida {
    PartidaNaTela() {
        define_pastas(jogador, VERDALIA_PROGRAMA);
        dir_media = "C:";
        dir_audio = "C:\\audio\\correto";
        som_ligado = musica_ligada = auto_abastecido = false;
        anim_acao = anim_quadros = 0;
        abre_fontes();
        registra_telas(fabricas_do_jogo, sai_do_jogo, grava_ja);
    }
    ~PartidaNaTela() override {
        EXPECT_TRUE(roteiro.feito()) << "o jogo acabou antes do roteiro";
        recomeca_laco();
        fecha_fontes();
    }

    // Uma tela só, como quem entra nela.
    template <class T> T& entra_em(TelaId id) {
        recomeca_laco();
        auto_abastecido = auto_abastecimento();
        mostra(id);
        return carrega_como<T>(id);
    }
    // Quantas vezes se ouviu o clipe da voz.
    auto falas(const char* clipe) const {
        return std::count(roteiro.tocados.begin(), roteiro.tocados.end(), dir_audio + clipe);
    }
    // Só o nome do arquivo: "li06.bmp".
    static std::string nome(const ImagemRef& figura) {
        return figura ? figura->caminho.substr(figura->caminho.rfind('\\') + 1) : "vazia";
    }

    // Joga o roteiro do começo do programa até o fim dele.
    void joga() {
        mostra(TelaId::fundo);
        laco();
    }

    Roteiro roteiro{relogio_de_teste};
};

} // namespace verdalia
