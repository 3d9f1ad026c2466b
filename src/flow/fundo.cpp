#include "flow/fundo.h"

#include "data/banco.h"
#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "platform/tela/laco.h"

namespace verdalia {

namespace {

struct SemResposta {};

bool aceita_copia(const std::string& frase) {
    const bool aceita = pergunta("Atenção ...", frase);
    if (!aceita && querem_sair()) throw SemResposta{};
    return aceita;
}

} // namespace

void fundo::Form_Load() {
    ponteiro = ponteiro_ampulheta;
    primeira_ativacao = true;
    cor_fundo = cor_grama;
    constexpr Lugar lugares[] = {
        {"nome_do_jogo", -1, 0, 40, largura_logica, 70, "Verdalia"},
        {"lema", -1, 0, 108, largura_logica, 30, "a horta da família, semana por semana"},
    };
    arruma(*this, lugares);
    nome_do_jogo.letra = {.familia = Familia::legenda, .corpo = 40, .negrito = true, .cor = cor_tinta_clara};
    constexpr const char* verduras[] = {"cen", "alf", "tom", "bro", "bgl", "rab", "pim"};
    for (int i = 0; i < static_cast<int>(std::size(verduras)); ++i) {
        Figura& f = verdura.cria(i);
        f.figura = carrega_figura(std::string("\\recursos\\feira_") + verduras[i] + ".bmp");
        f.fica_em({60.0 + 100 * i, 484, 72, 74});
    }
    lema.letra = {.familia = Familia::legenda, .corpo = 14, .cor = cor_tinta_clara};
}

void fundo::Form_Activate() {
    if (!primeira_ativacao) return;
    primeira_ativacao = false;
    som_ligado = false;
    musica_ligada = false;
    primeira_carga = true;
    try {
        if (!tenta_no_banco("Atenção ...", "O jogo não pode começar sem esse arquivo.",
                            [] { prepara_banco(aceita_copia); }))
            return termina(true);
    } catch (const SemResposta&) { // a pergunta volta da próxima vez: até lá nada muda no disco
        return termina();
    }
    mostra_avisos_do_banco();
    mostra_modal(TelaId::Conf_cd);
}

void fundo::pede_fechar() {
    termina();
}

} // namespace verdalia
