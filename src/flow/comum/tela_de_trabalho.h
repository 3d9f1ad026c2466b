// O que as telas de trabalho têm em comum: o hortelão e os caminhos, os dois tempos, a apresentação de abertura, os
// botões de trato com as suas marcas, a piscada que fecha um trato e os botões de cultura. Cada tela traz as suas
// tabelas e o que muda no seu quadro.
#pragma once
#include "flow/comum/animacao.h"
#include "flow/comum/series.h"
#include "platform/tela/botao.h"
#include "platform/tela/caixa_texto.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

// Um botão de trabalho: o trato que chama, a sua cor, as suas faces e falas. Sem código, só leva a outra tela.
struct Trabalho {
    int botao;
    const char* codigo; // o do calendário, "LI"; "" no botão que leva a outra tela
    Cor cor;
    Cor cor_do_texto;
    const char* face; // caminho a partir da raiz da figura
    const char* face_apagada;
    bool no_programa; // as faces estão na pasta do programa, e não em `dir_media`
    const char* fala_ha;
    const char* fala_nao_ha;
    std::int16_t acao; // a animação do clique
};

// Um botão de cultura, com o rótulo que diz quanto falta dela.
struct BotaoDeCultura {
    int k; // índice em Label3
    std::int16_t cultura;
    const char* nome; // do controle: "c_alf"
    double esquerda, topo, rotulo_esquerda, rotulo_topo;
    const char* abreviatura; // da figura em repouso, recursos\botao_<abreviatura>.bmp
    const char* figura;      // em destaque e no lugar plantado
    const char* clipe;       // o nome falado
    const char* dica;
    const char* dica_do_rotulo;
};

inline constexpr Cor cor_cinza{192, 192, 192};
inline const std::string nada_a_fazer = "-"; // num rótulo de cultura, sempre escondido

struct TelaDeTrabalho : Tela {
    TelaDeTrabalho(std::string nome, std::span<const Serie> series, std::span<const Trabalho> trabalhos,
                   std::span<const BotaoDeCultura> culturas, const char* nome_dos_botoes, const char* nome_das_marcas);

    Figura hortelino{*this, "hortelino"};
    Figura pic_agenda{*this, "pic_agenda"};
    Figura previsao{*this, "previsao"};
    Figura tempo_real{*this, "tempo_real"};
    CaixaTexto tempo{*this, "tempo"};
    CaixaTexto terra{*this, "terra"};
    Rotulo lbl_tempo{*this, "lbl_tempo"};
    Rotulo lbl_atividades{*this, "lbl_atividades"};
    Matriz<Botao> botoes;
    Matriz<Rotulo> marcas;
    std::vector<std::unique_ptr<Figura>> c_; // os botões de cultura, na ordem da tabela
    Matriz<Rotulo> Label3{*this, "Label3"};
    Temporizador timer_{*this};
    Temporizador Timer1{*this};
    Temporizador Timergame{*this};
    Animacao animacao;
    std::span<const Trabalho> trabalhos;
    std::span<const BotaoDeCultura> culturas;

    bool primeira_ativacao = true;
    bool falou_nome = false;
    std::int16_t piscadas = 0;

    // A parte comum de Form_Load: cria e liga os controles das tabelas; `origem` é o nome para a volta da ajuda.
    void prepara(const char* origem, std::span<const Lugar> lugares);
    // A parte comum do primeiro Form_Activate: a apresentação, se há trilha, e as duas semanas.
    void abre(const std::string& trilha);

    // Chama a animação de saída ou de figura quente dessa ação, com a ampulheta em `c`.
    void parte(Controle& c, std::int16_t acao);
    // Termina a apresentação, se ela corre.
    void final_animation();
    void previsao_Click();
    void tempo_real_Click();
    void lbl_tempo_Click();
    // Vai para a ajuda no tópico, depois da fala.
    void vai_a_ajuda(Controle& c, const char* topico);
    // Faz do rótulo uma palavra quente que leva ao tópico da ajuda; `corpo` em pontos.
    void liga_ajuda(Rotulo& r, const char* topico, double corpo = 11);
    // Um rótulo de régua, que numera colunas ou nomeia fileiras.
    static void poe_regua(Rotulo& r, std::string escrito, const Retangulo& onde);

    // Os botões: todos apagados e cinza; a cor de um trato, e aceso quando `feito` é 0; as faces de repouso.
    void apaga_botoes();
    void acende(const std::string& codigo, std::int16_t feito);
    void poe_faces();
    // Há algum trato por fazer nesta tela?
    bool trato_aceso();

    // O clique num botão de trato: mostra as marcas, fala e anima.
    void chama_trato(int botao);
    // O clique na marca `i`, cujo `check` é dado; `piscadas_da_tela` começa a contar no fim do trato.
    void marca_trato(int i, std::int16_t& check, std::int16_t piscadas_da_tela);
    void Timergame_Timer();
    // O quadro "Parabéns", se nada falta e nenhum trato está aceso.
    void parabeniza(bool falta, const char* figura);

    // A figura em destaque e a falada de uma cultura da tabela.
    const BotaoDeCultura* cultura_do_botao(std::string_view nome) const;
    const BotaoDeCultura& botao_da_cultura(std::int16_t cultura) const;
    void destaca(const BotaoDeCultura& b);
    void fala_nome(const BotaoDeCultura& b);

    // O que cada tela faz à sua maneira.
    virtual void botao_de_tela_Click(const Trabalho& t) = 0;   // o botão que leva a outra tela
    virtual bool mostra_marcas(const std::string& codigo) = 0; // verdadeiro quando algum lugar pede o trato
    virtual void marca_Click(int i) = 0;
    virtual void mudou_semana() = 0;   // as tabelas são de outra semana
    virtual void acabou_passeio() = 0; // a apresentação acabou: as faces voltam
    virtual void acabou_piscada() = 0;
    virtual void rotulo_Click(const BotaoDeCultura& b) = 0;                    // quanto falta, por extenso
    virtual void cultura_sobre(const BotaoDeCultura& b, const Arraste& a) = 0; // um arraste passa pelo botão

private:
    void cria_botao_de_cultura(const BotaoDeCultura& b);
    void cria_rotulo_de_cultura(const BotaoDeCultura& b);
};

} // namespace verdalia
