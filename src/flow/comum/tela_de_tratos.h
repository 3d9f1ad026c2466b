// O que horta e sementeira têm em comum, além dos tempos e caminhos: os botões de trato com as suas marcas, a piscada
// que fecha um trato e os botões de cultura. Cada tela traz as suas tabelas e o que muda no seu quadro.
#pragma once
#include "flow/comum/tela_de_trabalho.h"
#include "platform/tela/botao.h"

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

    bool e_trato() const { return *codigo != '\0'; }
};

// Um botão de cultura, com o rótulo que diz quanto falta dela.
struct BotaoDeCultura {
    int k; // índice em Label3
    std::int16_t cultura;
    const char* nome; // do controle: "c_alf"
    Retangulo lugar, lugar_do_rotulo;
    const char* abreviatura; // da figura em repouso, recursos\botao_<abreviatura>.bmp
    const char* figura;      // em destaque e no lugar plantado
    const char* clipe;       // o nome falado
    const char* dica;
    const char* dica_do_rotulo;
};

inline constexpr Cor cor_cinza{192, 192, 192};
inline const std::string nada_a_fazer = "-"; // num rótulo de cultura, sempre escondido

// A marca de um lugar que pede o trato chamado: uma caixa na cor dele, com o quadradinho por marcar ou o "ok".
struct MarcaDeTrato : Rotulo {
    using Rotulo::Rotulo;
    void pinta(Pintor& p, const Retangulo& r) override;
};

// O botão de uma cultura; enquanto a conta dela está à vista, tem uma moldura dourada.
struct FiguraDeCultura : Figura {
    using Figura::Figura;
    const Controle* conta = nullptr;
    void pinta(Pintor& p, const Retangulo& r) override;
};

// Quanto falta de uma cultura, num canto do botão dela.
struct ContaDeCultura : Rotulo {
    using Rotulo::Rotulo;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct TelaDeTratos : TelaDeTrabalho {
    TelaDeTratos(std::string nome, std::span<const Serie> series, std::span<const Trabalho> trabalhos,
                 std::span<const BotaoDeCultura> culturas, const char* nome_dos_botoes, const char* nome_das_marcas);

    Figura pic_agenda{*this, "pic_agenda"};
    Rotulo lbl_atividades{*this, "lbl_atividades"};
    Matriz<Botao> botoes;
    std::vector<std::unique_ptr<FiguraDeCultura>> c_; // os botões de cultura, na ordem da tabela
    Matriz<ContaDeCultura> Label3{*this, "Label3"};
    Matriz<MarcaDeTrato> marcas;
    Temporizador Timergame{*this};
    std::span<const Trabalho> trabalhos;
    std::span<const BotaoDeCultura> culturas;

    bool falou_nome = false;
    std::int16_t piscadas = 0;

    void desistiu_do_arraste() override { falou_nome = false; }

    // A parte comum de Form_Load: cria e liga os controles das tabelas.
    void prepara(const char* origem, std::span<const Lugar> lugares);
    void pic_agenda_Click() { parte(pic_agenda, serie_agenda.acao); }

    // Os botões: todos apagados e cinza; a cor de um trato, e aceso quando `feito` é 0; as faces de repouso.
    void apaga_botoes();
    void acende(const std::string& codigo, std::int16_t feito);
    void poe_faces();
    // Há algum trato por fazer nesta tela?
    bool trato_aceso();
    // O trato desse código; nulo quando nenhum botão o chama.
    const Trabalho* trato(std::string_view codigo) const;

    // O clique num botão de trabalho: para a piscada e a apresentação e chama o trato, ou leva a outra tela.
    void botao_Click(const Trabalho& t);
    // Mostra as marcas do trato, fala e anima.
    void chama_trato(const Trabalho& t);
    // O clique na marca `i`, cujo `check` é dado; enquanto outra marca pisca, não responde.
    void marca_trato(int i, std::int16_t& check);
    // O trato dessa cor acaba se nenhuma marca à vista está por fazer: depois de marcar, ou de tirar um lugar.
    void confere_fim_do_trato(Cor cor);
    void Timergame_Timer();
    // O quadro "Parabéns", se nada falta e nenhum trato está aceso.
    void parabeniza(bool falta, const char* figura);

    // A figura em destaque e a falada de uma cultura da tabela.
    const BotaoDeCultura* cultura_do_botao(std::string_view nome) const;
    const BotaoDeCultura& botao_da_cultura(std::int16_t cultura) const;
    void destaca(const BotaoDeCultura& b);
    void fala_nome(const BotaoDeCultura& b);

    // O que cada tela faz à sua maneira.
    virtual std::int16_t piscadas_da_tela() const = 0;         // quantos tiques dura a piscada, mais um
    virtual bool mostra_marcas(const std::string& codigo) = 0; // verdadeiro quando algum lugar pede o trato
    virtual void marca_Click(int i) = 0;
    virtual void acabou_piscada() = 0;
    virtual void rotulo_Click(const BotaoDeCultura& b) = 0;                    // quanto falta, por extenso
    virtual void cultura_sobre(const BotaoDeCultura& b, const Arraste& a) = 0; // um arraste passa pelo botão
    virtual std::string conselho(std::int16_t cultura) const = 0;              // o que fazer com a cultura, e quando

private:
    void cria_botao_de_cultura(const BotaoDeCultura& b);
    void cria_rotulo_de_cultura(const BotaoDeCultura& b);
};

} // namespace verdalia
