// O que as telas de trabalho têm em comum: o hortelão e os caminhos, os dois tempos e a previsão, a apresentação de
// abertura e as palavras que levam à ajuda. Cada tela traz as suas séries e o que muda no seu quadro.
#pragma once
#include "flow/comum/animacao.h"
#include "flow/comum/series.h"
#include "platform/tela/caixa_texto.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

// O planeta: durante uma previsão, contornado com a cor dela.
struct Planeta : Figura {
    using Figura::Figura;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct TelaDeTrabalho : Tela {
    TelaDeTrabalho(std::string nome, std::span<const Serie> series);

    Figura hortelino{*this, "hortelino"};
    Planeta previsao{*this, "previsao"};
    Figura tempo_real{*this, "tempo_real"};
    CaixaTexto tempo{*this, "tempo"};
    CaixaTexto terra{*this, "terra"};
    Rotulo lbl_tempo{*this, "lbl_tempo"};
    Rotulo faixa{*this, "faixa"}; // "Previsão: daqui a 2 semanas", enquanto ela dura
    Temporizador timer_{*this};
    Temporizador Timer1{*this};
    Animacao animacao;

    bool primeira_ativacao = true;

    void pede_fechar() override;

    // A parte comum de Form_Load: põe nos lugares e liga os controles daqui; `origem` é o nome para a volta da ajuda.
    void prepara(const char* origem, std::span<const Lugar> lugares);
    // Começa a apresentação, se há música.
    void comeca_passeio(const std::string& trilha);
    // Acerta as duas semanas e a faixa com as datas.
    void mostra_semanas();

    // Chama a animação de saída ou de figura quente dessa ação, com a ampulheta em `c`.
    void parte(Controle& c, std::int16_t acao);
    // Termina a apresentação, se ela corre.
    virtual void final_animation();
    void hortelino_Click() { parte(hortelino, serie_hortelao.acao); }
    void previsao_Click();
    void tempo_real_Click();
    void lbl_tempo_Click();
    void Timer__Timer() { animacao.tique(); }
    void Timer1_Timer() { final_animation(); }
    // Vai para a ajuda no tópico, depois da fala.
    void vai_a_ajuda(Controle& c, const char* topico);
    // Faz do rótulo uma palavra quente que leva ao tópico da ajuda; `corpo` em pontos.
    void liga_ajuda(Rotulo& r, const char* topico, double corpo = 11);
    // Um rótulo de régua, que numera colunas ou nomeia fileiras.
    static void poe_regua(Rotulo& r, std::string escrito, const Retangulo& onde);

    // O que cada tela faz à sua maneira.
    virtual void mudou_semana(bool adiante) = 0; // as tabelas são de outra semana, da previsão ou da volta a hoje
    virtual void acabou_passeio() = 0;           // a apresentação acabou: as figuras voltam
};

} // namespace verdalia
