#include "flow/comum/tela_de_trabalho.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/regras/calendario.h"

namespace verdalia {

namespace {

constexpr int duracao_do_passeio = 12000;
constexpr std::int16_t quadros_do_passeio = 10000; // mais do que o passeio usa

std::string semana(Momento m) {
    return std::to_string(semana_do_ano(std::chrono::floor<std::chrono::days>(m)));
}

void esquenta(Rotulo& r, double corpo) {
    r.quente = true;
    r.letra = {.familia = Familia::legenda, .corpo = corpo, .negrito = true};
    r.ponteiro = ponteiro_mao;
}

} // namespace

void Planeta::pinta(Pintor& p, const Retangulo& r) {
    Figura::pinta(p, r);
    if (previsao_ligada()) p.contorno({r.x - 4, r.y - 4, r.largura + 8, r.altura + 8}, 3, cor_previsao);
}

TelaDeTrabalho::TelaDeTrabalho(std::string nome_da_tela, std::span<const Serie> series)
    : Tela(std::move(nome_da_tela)), animacao{*this, timer_, series} {}

void TelaDeTrabalho::pede_fechar() {
    if (animacao.saindo()) animacao.para(); // a pergunta da saída toma o lugar do caminho já começado
    Tela::pede_fechar();
}

void TelaDeTrabalho::prepara(const char* origem, std::span<const Lugar> lugares) {
    primeira_ativacao = true;
    anim_acao = -1;
    tela_origem = origem;
    arruma(*this, lugares);

    hortelino.figura = carrega_figura(dir_media + "\\anima\\hort00.bmp");
    previsao.figura = carrega_figura(dir_media + "\\anima\\planet01.bmp");
    tempo_real.figura = carrega_figura(fig_dia_semana());
    hortelino.clique = [this] { hortelino_Click(); };
    previsao.clique = [this] { previsao_Click(); };
    tempo_real.clique = [this] { tempo_real_Click(); };
    lbl_tempo.clique = [this] { lbl_tempo_Click(); };
    esquenta(lbl_tempo, 11);
    for (CaixaTexto* c : {&tempo, &terra}) {
        c->travada = true;
        c->alinha = Alinha::centro;
        c->letra = {.familia = Familia::legenda, .corpo = 9, .negrito = true};
    }
    faixa.cor_fundo = cor_previsao;
    faixa.borda = true;
    faixa.atravessa = true;
    faixa.letra = {.familia = Familia::legenda, .corpo = 10, .negrito = true, .cor = tinta_sobre(cor_previsao)};
    timer_.dispara = [this] { Timer__Timer(); };
    Timer1.dispara = [this] { Timer1_Timer(); };
}

void TelaDeTrabalho::comeca_passeio(const std::string& trilha) {
    if (!musica_ligada) return;
    animacao.passeio = true;
    anim_quadros = quadros_do_passeio;
    Timer1.intervalo = duracao_do_passeio;
    timer_.intervalo = intervalo_da_animacao;
    efeito(trilha, sem_esperar);
}

void TelaDeTrabalho::mostra_semanas() {
    tempo.texto = semana(data_hoje);
    terra.texto = semana(data_previsao);
    const auto adiante = (data_previsao - data_hoje) / std::chrono::days{7};
    faixa.visivel = previsao_ligada();
    faixa.texto = "Previsão: daqui a " + std::to_string(adiante) + (adiante == 1 ? " semana" : " semanas");
}

void TelaDeTrabalho::parte(Controle& c, std::int16_t acao) {
    final_animation();
    animacao.comeca(acao);
    c.ponteiro = ponteiro_ampulheta;
}

void TelaDeTrabalho::final_animation() {
    if (Timer1.intervalo == 0) return;
    Timer1.intervalo = 0;
    animacao.para();
    animacao.passeio = false;
    acabou_passeio();
}

void TelaDeTrabalho::previsao_Click() {
    final_animation();
    animacao.comeca(serie_previsao.acao);
    ponteiro_salvo = static_cast<std::int16_t>(previsao.ponteiro);
    previsao.ponteiro = ponteiro_ampulheta;
    fala("\\previsao.wav", sem_esperar);
    avanca_previsao();
    mudou_semana(true);
    mostra_semanas();
    previsao.ponteiro = ponteiro_salvo;
}

void TelaDeTrabalho::tempo_real_Click() {
    final_animation();
    animacao.comeca(serie_tempo_real.acao);
    ponteiro_salvo = static_cast<std::int16_t>(tempo_real.ponteiro);
    tempo_real.ponteiro = ponteiro_ampulheta;
    fala("\\tempo.wav", sem_esperar);
    if (previsao_ligada()) {
        volta_ao_tempo_real();
        mudou_semana(false);
        mostra_semanas();
    }
    tempo_real.ponteiro = ponteiro_salvo;
}

void TelaDeTrabalho::lbl_tempo_Click() {
    mostra_quadro("Tempo Real", "\\anima\\help6.jpg");
}

void TelaDeTrabalho::vai_a_ajuda(Controle& c, const char* topico) {
    c.ponteiro = ponteiro_ampulheta;
    fala("\\ajuda.wav", espera_o_fim);
    descarrega(*this);
    topico_help = topico;
    mostra(TelaId::help);
}

void TelaDeTrabalho::liga_ajuda(Rotulo& r, const char* topico, double corpo) {
    esquenta(r, corpo);
    r.clique = [this, &r, topico] { vai_a_ajuda(r, topico); };
}

void TelaDeTrabalho::poe_regua(Rotulo& r, std::string escrito, const Retangulo& onde) {
    r.texto = std::move(escrito);
    r.fica_em(onde);
    r.letra = {.familia = Familia::legenda, .corpo = 10, .negrito = true};
}

} // namespace verdalia
