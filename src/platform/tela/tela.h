// Telas: cada uma dona dos seus controles, na ordem em que se pintam. As carregadas ficam numa pilha; a de cima
// manda. Uma tela sai dizendo o nome da próxima.
#pragma once
#include "platform/tela/controle.h"

#include <memory>
#include <span>

namespace verdalia {

enum class TelaId : int; // os nomes são do jogo, que os define

struct Tela {
    explicit Tela(std::string nome);
    virtual ~Tela();
    Tela(const Tela&) = delete;
    Tela& operator=(const Tela&) = delete;

    std::string nome;
    std::string titulo;
    ImagemRef fundo;
    Cor cor_fundo = cor_papel;
    int ponteiro = ponteiro_normal;
    // Um diálogo tem moldura e título da plataforma, e fica no meio da janela; as medidas são do miolo.
    bool dialogo = false;
    bool fechavel = false;       // o diálogo mostra a caixa de fechar
    bool solta_no_fundo = false; // um arraste pode cair no fundo da tela: o teclado o oferece como alvo
    Retangulo evita{};           // o diálogo sobe ou desce para não cobrir isto, em pixels da janela
    double largura = largura_logica, altura = altura_logica;

    std::vector<Controle*> controles;
    std::vector<Temporizador*> temporizadores;
    std::vector<Retangulo> paineis; // as partes da tela na ordem em que se leem; o Tab vai de uma à outra
    Controle* foco = nullptr;
    Controle* padrao = nullptr; // num diálogo, quem responde ao Enter quando nada tem o foco

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Form_Click() {}
    // Um arraste caiu no fundo; falso quando nada havia que fazer com ele, e a figura volta ao seu lugar.
    virtual bool Form_DragDrop(const Arraste&) { return false; }
    virtual void Form_DragOver() {}       // um arraste passa pelo fundo
    virtual void desistiu_do_arraste() {} // o jogador, ou um diálogo, o desfez antes de cair
    // O jogador pediu para fechar: num diálogo, a caixa de fechar ou Esc; numa tela inteira, o fecho da janela, que é
    // a saída do jogo. Com diálogos abertos, o fecho da janela os fecha antes, um por um.
    virtual void pede_fechar();

    // O controle pelo nome e número; nulo se não há.
    Controle* controle(std::string_view nome_procurado, int indice = -1) const;
    // Guarda um controle tirado da tela até que nenhum evento o esteja usando.
    void descarta(std::unique_ptr<Controle> controle);
    // O canto do miolo e a moldura inteira na janela, em pixels lógicos.
    double origem_x() const { return (largura_logica - largura) / 2; }
    double origem_y() const;
    Retangulo miolo() const { return {origem_x(), origem_y(), largura, altura}; }
    Retangulo caixa_de_fechar() const;
    void pinta(Pintor& p);

    std::vector<std::unique_ptr<Controle>> descartados;
};

// Onde ficam e o que dizem os controles de uma tela: uma linha da tabela por controle.
struct Lugar {
    const char* nome;
    int indice;
    double esquerda, topo, largura, altura;
    const char* texto = "";
    const char* dica = "";
};
// Põe em cada controle já criado o lugar, o texto e a dica da tabela. Nome desconhecido é falha do programa
// (std::logic_error).
void arruma(Tela& tela, std::span<const Lugar> lugares);

struct FabricaDeTela {
    TelaId id;
    std::unique_ptr<Tela> (*cria)();
};
// A tabela de quem está atrás de cada nome; o que fazer quando o jogador pede para fechar a janela; e como gravar sem
// perguntar, que devolve se gravou (sem isto, não há o que gravar).
void registra_telas(std::span<const FabricaDeTela> fabricas, void (*ao_fechar_a_janela)(),
                    bool (*grava_sem_perguntar)() = nullptr);
// O sistema pode acabar com o jogo sem outro aviso: grava, e diz se gravou.
bool guarda_o_jogo();
// O sistema manda acabar já: grava e termina.
void encerra();

// Carrega a tela se ainda não está (Form_Load), sem a mostrar.
Tela& carrega(TelaId id);
template <class T> T& carrega_como(TelaId id) {
    return static_cast<T&>(carrega(id));
}
bool carregada(TelaId id);
// Mostra a tela por cima das outras (por baixo dos diálogos abertos) e chama Form_Activate.
void mostra(TelaId id);
// Mostra um diálogo e só volta quando ele é escondido ou descarregado, ou quando o jogo termina.
void mostra_modal(TelaId id);
void esconde(Tela& tela);
// Form_Unload e destruição, que espera o fim dos eventos em curso.
void descarrega(Tela& tela);
// A tela que recebe as ações do jogador; nula antes da primeira.
Tela* tela_ativa();
// Destrói todas; para o fim do programa e dos testes.
void descarrega_tudo();

} // namespace verdalia
