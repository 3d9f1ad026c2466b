#include "flow/comum/tela_de_trabalho.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/regras/calendario.h"

#include <algorithm>

namespace verdalia {

namespace {

constexpr int duracao_do_passeio = 12000;
constexpr std::int16_t quadros_do_passeio = 10000; // mais do que o passeio usa
constexpr int intervalo_da_piscada = 100;

std::string semana(Momento m) {
    return std::to_string(semana_do_ano(std::chrono::floor<std::chrono::days>(m)));
}

void esquenta(Rotulo& r, double corpo) {
    r.quente = true;
    r.letra = {.familia = Familia::legenda, .corpo = corpo, .negrito = true};
    r.ponteiro = ponteiro_mao;
}

// Uma marca escondida pela piscada tem este texto, para que se saiba qual mostrar de novo.
const std::string escondida = ".";

} // namespace

TelaDeTrabalho::TelaDeTrabalho(std::string nome_da_tela, std::span<const Serie> series,
                               std::span<const Trabalho> trabalhos_da_tela,
                               std::span<const BotaoDeCultura> culturas_da_tela, const char* nome_dos_botoes,
                               const char* nome_das_marcas)
    : Tela(std::move(nome_da_tela)), botoes(*this, nome_dos_botoes),
      marcas(*this, nome_das_marcas), animacao{*this, timer_, series, nullptr}, trabalhos(trabalhos_da_tela),
      culturas(culturas_da_tela) {}

void TelaDeTrabalho::prepara(const char* origem, std::span<const Lugar> lugares) {
    primeira_ativacao = true;
    anim_acao = -1;
    tela_origem = origem;
    for (const Trabalho& t : trabalhos) {
        botoes.cria(t.botao).clique = [this, &t] {
            if (*t.codigo != '\0') return chama_trato(t.botao);
            Timergame.intervalo = 0;
            final_animation();
            botao_de_tela_Click(t);
        };
    }
    for (const BotaoDeCultura& b : culturas) cria_botao_de_cultura(b);
    for (const BotaoDeCultura& b : culturas) cria_rotulo_de_cultura(b); // por cima de todos os botões
    arruma(*this, lugares);

    hortelino.figura = carrega_figura(dir_media + "\\anima\\hort00.bmp");
    pic_agenda.figura = carrega_figura(dir_media + "\\anima\\age10.bmp");
    previsao.figura = carrega_figura(dir_media + "\\anima\\planet01.bmp");
    tempo_real.figura = carrega_figura(fig_dia_semana());
    hortelino.clique = [this] { parte(hortelino, serie_hortelao.acao); };
    pic_agenda.clique = [this] { parte(pic_agenda, serie_agenda.acao); };
    previsao.clique = [this] { previsao_Click(); };
    tempo_real.clique = [this] { tempo_real_Click(); };
    lbl_tempo.clique = [this] { lbl_tempo_Click(); };
    esquenta(lbl_tempo, 11);
    for (CaixaTexto* c : {&tempo, &terra}) {
        c->travada = true;
        c->alinha = Alinha::centro;
        c->letra = {.familia = Familia::legenda, .corpo = 9, .negrito = true};
    }
    timer_.dispara = [this] { animacao.tique(); };
    Timer1.dispara = [this] { final_animation(); };
    Timergame.dispara = [this] { Timergame_Timer(); };
}

void TelaDeTrabalho::cria_botao_de_cultura(const BotaoDeCultura& b) {
    Figura& f = *c_.emplace_back(std::make_unique<Figura>(*this, b.nome));
    f.esquerda = b.esquerda;
    f.topo = b.topo;
    f.largura = 39;
    f.altura = 40;
    f.dica = b.dica;
    f.arrasta = true;
    f.figura = carrega_figura(std::string("\\recursos\\botao_") + b.abreviatura + ".bmp");
    f.clique = [this, &b] { fala_nome(b); };
    f.sobre = [this, &b](const Arraste& a) { cultura_sobre(b, a); };
    f.solta = [this](const Arraste&) { falou_nome = false; };
}

void TelaDeTrabalho::cria_rotulo_de_cultura(const BotaoDeCultura& b) {
    Rotulo& r = Label3.cria(b.k);
    r.esquerda = b.rotulo_esquerda;
    r.topo = b.rotulo_topo;
    r.largura = 16;
    r.altura = 17;
    r.borda = true;
    r.cor_fundo = {192, 192, 255};
    r.letra = {.corpo = 9, .negrito = true, .cor = {0, 0, 192}};
    r.texto = nada_a_fazer;
    r.visivel = false;
    r.dica = b.dica_do_rotulo;
    r.clique = [this, &b] { rotulo_Click(b); };
}

void TelaDeTrabalho::abre(const std::string& trilha) {
    if (musica_ligada) {
        animacao.passeio = true;
        anim_quadros = quadros_do_passeio;
        Timer1.intervalo = duracao_do_passeio;
        timer_.intervalo = intervalo_da_animacao;
        efeito(trilha, sem_esperar);
    }
    tempo.texto = semana(data_hoje);
    terra.texto = semana(data_previsao);
    falou_nome = false;
}

void TelaDeTrabalho::parte(Controle& c, std::int16_t acao) {
    c.ponteiro = ponteiro_ampulheta;
    final_animation();
    animacao.comeca(acao);
}

void TelaDeTrabalho::final_animation() {
    if (Timer1.intervalo == 0) return;
    Timer1.intervalo = 0;
    timer_.intervalo = 0;
    animacao.passeio = false;
    acabou_passeio();
}

void TelaDeTrabalho::previsao_Click() {
    final_animation();
    ponteiro_salvo = static_cast<std::int16_t>(previsao.ponteiro);
    previsao.ponteiro = ponteiro_ampulheta;
    animacao.comeca(serie_previsao.acao);
    fala("\\previsao.wav", sem_esperar);
    avanca_previsao();
    mudou_semana();
    terra.texto = semana(data_previsao);
    previsao.ponteiro = ponteiro_salvo;
}

void TelaDeTrabalho::tempo_real_Click() {
    final_animation();
    ponteiro_salvo = static_cast<std::int16_t>(tempo_real.ponteiro);
    tempo_real.ponteiro = ponteiro_ampulheta;
    animacao.comeca(serie_tempo_real.acao);
    fala("\\tempo.wav", sem_esperar);
    if (previsao_ligada()) {
        volta_ao_tempo_real();
        terra.texto = semana(data_previsao);
        mudou_semana();
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
    r.esquerda = onde.x;
    r.topo = onde.y;
    r.largura = onde.largura;
    r.altura = onde.altura;
    r.letra = {.familia = Familia::legenda, .corpo = 10, .negrito = true};
}

void TelaDeTrabalho::apaga_botoes() {
    for (const Trabalho& t : trabalhos) {
        botoes(t.botao).ativo = false;
        botoes(t.botao).cor_fundo = cor_cinza;
    }
}

void TelaDeTrabalho::acende(const std::string& codigo, std::int16_t feito) {
    for (const Trabalho& t : trabalhos) {
        if (*t.codigo == '\0' || codigo != t.codigo) continue;
        botoes(t.botao).cor_fundo = t.cor;
        if (feito == 0) botoes(t.botao).ativo = true;
    }
}

void TelaDeTrabalho::poe_faces() {
    for (const Trabalho& t : trabalhos) {
        const std::string raiz = t.no_programa ? "" : dir_media;
        troca_figura(botoes(t.botao).figura, raiz + t.face);
        troca_figura(botoes(t.botao).figura_apagada, raiz + t.face_apagada);
    }
}

bool TelaDeTrabalho::trato_aceso() {
    return std::any_of(trabalhos.begin(), trabalhos.end(),
                       [this](const Trabalho& t) { return *t.codigo != '\0' && botoes(t.botao).ativo; });
}

void TelaDeTrabalho::chama_trato(int botao) {
    const Trabalho& t = *std::find_if(trabalhos.begin(), trabalhos.end(),
                                      [botao](const Trabalho& outro) { return outro.botao == botao; });
    Timergame.intervalo = 0;
    final_animation();
    fala(mostra_marcas(t.codigo) ? t.fala_ha : t.fala_nao_ha, sem_esperar);
    animacao.comeca(t.acao);
}

void TelaDeTrabalho::marca_trato(int i, std::int16_t& check, std::int16_t piscadas_da_tela) {
    check = static_cast<std::int16_t>(~check);
    if (check == 0) return;
    marcas(i).texto = "ok";
    for (const auto& [indice, marca] : marcas)
        if (marca->visivel && marca->texto.empty()) return;
    if (!animacao.saindo()) timer_.intervalo = 0;
    piscadas = piscadas_da_tela;
    Timergame.intervalo = intervalo_da_piscada;
    for (const Trabalho& t : trabalhos) {
        if (*t.codigo == '\0' || botoes(t.botao).cor_fundo != marcas(i).cor_fundo) continue;
        // Uma série em curso pode ter deixado um quadro na face apagada.
        botoes(t.botao).figura_apagada = carrega_figura(dir_media + t.face_apagada);
        botoes(t.botao).ativo = false;
        break;
    }
}

void TelaDeTrabalho::Timergame_Timer() {
    --piscadas;
    const bool acabou = piscadas <= 0;
    if (acabou) Timergame.intervalo = 0;
    for (const auto& [indice, marca] : marcas) {
        if ((acabou || piscadas % 2 == 0) && marca->texto == escondida) {
            marca->texto = "ok";
            marca->visivel = !acabou;
        } else if (!acabou && piscadas % 2 != 0 && marca->visivel) {
            marca->texto = escondida;
            marca->visivel = false;
        }
    }
    if (acabou) acabou_piscada();
}

void TelaDeTrabalho::parabeniza(bool falta, const char* figura) {
    if (!falta && !trato_aceso() && auto_abastecido) mostra_quadro("Parabéns", figura);
}

const BotaoDeCultura* TelaDeTrabalho::cultura_do_botao(std::string_view nome_do_botao) const {
    for (const BotaoDeCultura& b : culturas)
        if (nome_do_botao == b.nome) return &b;
    return nullptr;
}

const BotaoDeCultura& TelaDeTrabalho::botao_da_cultura(std::int16_t cultura) const {
    return *std::find_if(culturas.begin(), culturas.end(),
                         [cultura](const BotaoDeCultura& b) { return b.cultura == cultura; });
}

void TelaDeTrabalho::destaca(const BotaoDeCultura& b) {
    troca_figura(controle(b.nome)->figura, dir_media + b.figura);
}

void TelaDeTrabalho::fala_nome(const BotaoDeCultura& b) {
    fala(b.clipe, sem_esperar);
}

} // namespace verdalia
