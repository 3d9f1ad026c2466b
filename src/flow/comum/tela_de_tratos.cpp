#include "flow/comum/tela_de_tratos.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"

#include <algorithm>

namespace verdalia {

namespace {

constexpr int intervalo_da_piscada = 100;

// Uma marca escondida pela piscada tem este texto, para que se saiba qual mostrar de novo.
const std::string escondida = ".";

} // namespace

void MarcaDeTrato::pinta(Pintor& p, const Retangulo& r) {
    Rotulo::pinta(p, r);
    if (!texto.empty()) return;
    const double lado = r.altura - 5;
    p.moldura({r.x + (r.largura - lado) / 2, r.y + 2.5, lado, lado}, 2, 1.2, letra.cor, cor_papel_claro);
}

void FiguraDeCultura::pinta(Pintor& p, const Retangulo& r) {
    if (conta->visivel) p.moldura({r.x - 1, r.y - 1, r.largura + 2, r.altura + 2}, 9, 2, cor_ouro, {0xff, 0xf6, 0xd0});
    Figura::pinta(p, r);
}

void ContaDeCultura::pinta(Pintor& p, const Retangulo& r) {
    // Só até onde acaba o botão da cultura: o do lado tem de se ver inteiro.
    const Retangulo dentro{r.x, r.y, 12, r.altura};
    p.moldura(dentro, 3, 1, letra.cor, cor_fundo);
    p.texto_que_cabe(texto, {dentro.x + 1, dentro.y, dentro.largura - 2, dentro.altura}, letra);
}

TelaDeTratos::TelaDeTratos(std::string nome_da_tela, std::span<const Serie> series,
                           std::span<const Trabalho> trabalhos_da_tela,
                           std::span<const BotaoDeCultura> culturas_da_tela, const char* nome_dos_botoes,
                           const char* nome_das_marcas)
    : TelaDeTrabalho(std::move(nome_da_tela), series), botoes(*this, nome_dos_botoes), marcas(*this, nome_das_marcas),
      trabalhos(trabalhos_da_tela), culturas(culturas_da_tela) {}

void TelaDeTratos::prepara(const char* origem, std::span<const Lugar> lugares) {
    for (const Trabalho& t : trabalhos) botoes.cria(t.botao).clique = [this, &t] { botao_Click(t); };
    for (const BotaoDeCultura& b : culturas) cria_botao_de_cultura(b);
    for (const BotaoDeCultura& b : culturas) cria_rotulo_de_cultura(b); // por cima de todos os botões
    TelaDeTrabalho::prepara(origem, lugares);
    pic_agenda.figura = carrega_figura(dir_media + "\\anima\\age10.bmp");
    pic_agenda.clique = [this] { pic_agenda_Click(); };
    Timergame.dispara = [this] { Timergame_Timer(); };
    falou_nome = false;
}

void TelaDeTratos::cria_botao_de_cultura(const BotaoDeCultura& b) {
    Figura& f = *c_.emplace_back(std::make_unique<FiguraDeCultura>(*this, b.nome));
    f.fica_em(b.lugar);
    f.dica_viva = [this, &b](double, double) { return std::string(b.dica).append("\n").append(conselho(b.cultura)); };
    f.arrasta = true;
    f.figura = carrega_figura(std::string("\\recursos\\botao_") + b.abreviatura + ".bmp");
    f.clique = [this, &b] { fala_nome(b); };
    f.sobre = [this, &b](const Arraste& a) { cultura_sobre(b, a); };
    f.solta = [this](const Arraste&) { falou_nome = false; };
}

void TelaDeTratos::cria_rotulo_de_cultura(const BotaoDeCultura& b) {
    Rotulo& r = Label3.cria(b.k);
    c_[static_cast<std::size_t>(&b - culturas.data())]->conta = &r;
    r.fica_em(b.lugar_do_rotulo);
    r.cor_fundo = {192, 192, 255};
    r.letra = {.corpo = 9, .negrito = true, .cor = {0, 0, 192}};
    r.texto = nada_a_fazer;
    r.visivel = false;
    r.dica = b.dica_do_rotulo;
    r.ponteiro = ponteiro_mao;
    r.clique = [this, &b] { rotulo_Click(b); };
}

void TelaDeTratos::apaga_botoes() {
    for (const Trabalho& t : trabalhos) {
        botoes(t.botao).ativo = false;
        botoes(t.botao).cor_fundo = cor_cinza;
    }
}

const Trabalho* TelaDeTratos::trato(std::string_view codigo) const {
    const auto t = std::find_if(trabalhos.begin(), trabalhos.end(),
                                [codigo](const Trabalho& outro) { return outro.e_trato() && codigo == outro.codigo; });
    return t == trabalhos.end() ? nullptr : &*t;
}

void TelaDeTratos::acende(const std::string& codigo, std::int16_t feito) {
    const Trabalho* t = trato(codigo);
    if (t == nullptr) return;
    botoes(t->botao).cor_fundo = t->cor;
    if (feito == 0) botoes(t->botao).ativo = true;
}

void TelaDeTratos::poe_faces() {
    for (const Trabalho& t : trabalhos) {
        const std::string raiz = t.no_programa ? "" : dir_media;
        troca_figura(botoes(t.botao).figura, raiz + t.face);
        troca_figura(botoes(t.botao).figura_apagada, raiz + t.face_apagada);
    }
}

bool TelaDeTratos::trato_aceso() {
    return std::any_of(trabalhos.begin(), trabalhos.end(),
                       [this](const Trabalho& t) { return t.e_trato() && botoes(t.botao).ativo; });
}

void TelaDeTratos::botao_Click(const Trabalho& t) {
    Timergame.intervalo = 0;
    final_animation();
    if (t.e_trato())
        chama_trato(t);
    else
        parte(botoes(t.botao), t.acao);
}

void TelaDeTratos::chama_trato(const Trabalho& t) {
    fala(mostra_marcas(t.codigo) ? t.fala_ha : t.fala_nao_ha, sem_esperar);
    animacao.comeca(t.acao);
}

void TelaDeTratos::marca_trato(int i, std::int16_t& check) {
    if (Timergame.intervalo != 0) return;
    check = static_cast<std::int16_t>(~check);
    if (check == 0) return;
    marcas(i).texto = "ok";
    confere_fim_do_trato(marcas(i).cor_fundo);
}

void TelaDeTratos::confere_fim_do_trato(Cor cor) {
    if (Timergame.intervalo != 0) return; // já acabou, e pisca
    for (const auto& [indice, marca] : marcas)
        if (marca->visivel && marca->texto.empty()) return;
    if (!animacao.saindo()) animacao.para();
    piscadas = piscadas_da_tela();
    Timergame.intervalo = intervalo_da_piscada;
    for (const Trabalho& t : trabalhos) {
        if (!t.e_trato() || botoes(t.botao).cor_fundo != cor) continue;
        // Uma série em curso pode ter deixado um quadro na face apagada.
        botoes(t.botao).figura_apagada = carrega_figura(dir_media + t.face_apagada);
        botoes(t.botao).ativo = false;
        break;
    }
}

void TelaDeTratos::Timergame_Timer() {
    if (piscadas <= 1 && tela_ativa() != this) return; // a piscada acaba quando o diálogo se fechar
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

void TelaDeTratos::parabeniza(bool falta, const char* figura) {
    if (!falta && !trato_aceso() && auto_abastecido) mostra_quadro("Parabéns", figura);
}

const BotaoDeCultura* TelaDeTratos::cultura_do_botao(std::string_view nome_do_botao) const {
    for (const BotaoDeCultura& b : culturas)
        if (nome_do_botao == b.nome) return &b;
    return nullptr;
}

const BotaoDeCultura& TelaDeTratos::botao_da_cultura(std::int16_t cultura) const {
    return *std::find_if(culturas.begin(), culturas.end(),
                         [cultura](const BotaoDeCultura& b) { return b.cultura == cultura; });
}

void TelaDeTratos::destaca(const BotaoDeCultura& b) {
    FiguraDeCultura& f = *c_[static_cast<std::size_t>(&b - culturas.data())];
    troca_figura(f.figura, dir_media + b.figura);
}

void TelaDeTratos::fala_nome(const BotaoDeCultura& b) {
    fala(b.clipe, sem_esperar);
}

} // namespace verdalia
