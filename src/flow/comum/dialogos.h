// Os três diálogos que levam toda mensagem do jogo. Quem chama é dono do som que vai com a mensagem.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/botao.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

#include <string>

namespace verdalia {

struct ok : Tela {
    Figura Image1{*this, "Image1"};
    Rotulo mensagem{*this, "mensagem"};
    Botao opções{*this, "opções"};

    ok();
    void Form_Load() override;
    void opções_Click();
};

struct form_ok_nao : Tela {
    Figura Image1{*this, "Image1"};
    Rotulo mensagem{*this, "mensagem"};
    Matriz<Botao> opções{*this, "opções"};

    Matriz<Figura> ilustracao{*this, "ilustracao"};
    Rotulo legenda{*this, "legenda"};

    form_ok_nao();
    void Form_Load() override;
    void pede_fechar() override { opções_Click(1); } // Esc, e o fecho da janela: nada se faz
    void opções_Click(int Index);
};

struct ok_help : Tela {
    ok_help();
    void Form_Click() override { descarrega(*this); }
};

// O que uma pergunta mostra além do texto, e o que a sua resposta arrisca.
struct Questao {
    bool perde_algo = false;               // "Não" é então a resposta de quem só aperta Enter
    std::vector<std::string> ilustracao{}; // até duas figuras, de que se fala
    std::string legenda{};                 // embaixo delas
    Retangulo evita{};                     // o que o diálogo não deve cobrir, em pixels da janela
};

// Mostra `ok` com o título e a mensagem, e espera.
void avisa(const std::string& titulo, const std::string& mensagem);
// Mostra `form_ok_nao` e espera; a resposta fica também em `resposta_sim`.
bool pergunta(const std::string& titulo, const std::string& mensagem, const Questao& questao = {});
// Mostra `ok_help` com a figura de `dir_media`, e espera.
void mostra_quadro(const std::string& titulo, const std::string& figura);
// Faz algo com o banco; se não dá certo, mostra a explicação seguida de `consolo` e devolve false.
bool tenta_no_banco(const std::string& titulo, const std::string& consolo, const std::function<void()>& faz);
// Mostra, um por um, os avisos que o banco deixou, e os esquece.
void mostra_avisos_do_banco();

} // namespace verdalia
