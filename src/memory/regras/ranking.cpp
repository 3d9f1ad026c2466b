#include "memory/regras/ranking.h"

#include "data/banco.h"
#include "data/banco_arquivo.h"
#include "platform/base/relogio.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace verdalia {

namespace {

constexpr const char* banco_do_ranking = "\\gm.mdb";

// Cada campo da tabela e onde ele fica na linha.
struct CampoDaLinha {
    const char* nome;
    std::string LinhaDoRanking::*onde;
};
constexpr CampoDaLinha campos[] = {
    {"peq_gra", &LinhaDoRanking::peq_gra}, {"tipo", &LinhaDoRanking::tipo}, {"valor", &LinhaDoRanking::valor},
    {"nome", &LinhaDoRanking::nome},       {"dta", &LinhaDoRanking::dta},
};

// O jogo nunca guarda mais de dez linhas; um arquivo inchado não prende o jogo.
constexpr std::size_t maximo_de_linhas = 1000;

constexpr std::size_t letras_do_valor = 5;

bool antes(const LinhaDoRanking& a, const LinhaDoRanking& b) {
    return std::tie(a.peq_gra, a.tipo, a.valor) < std::tie(b.peq_gra, b.tipo, b.valor);
}

std::string sem_brancos(std::string texto) {
    std::erase(texto, ' ');
    return texto;
}

// Os cinco últimos caracteres, com zeros na frente: "1:05" é "01:05".
std::string valor_guardado(const std::string& resultado) {
    const std::string longo = "00000" + sem_brancos(resultado);
    return longo.substr(longo.size() - letras_do_valor);
}

// "2026-03-04" como "04/03/26".
std::string dia_curto(Dia dia) {
    const std::string iso = texto_iso(dia);
    return iso.substr(8, 2) + "/" + iso.substr(5, 2) + "/" + iso.substr(2, 2);
}

bool e_do_ranking(const LinhaDoRanking& linha, const std::string& tipo) {
    return linha.peq_gra == tamanho_jogo && linha.tipo == tipo;
}

// Procura o lugar do resultado; `vence` diz se ele é melhor que o valor de uma linha.
template <typename Vence> bool bate(std::int16_t& pos, const std::string& tipo, Vence vence) {
    pos = 0;
    bool achou = false;
    for (const LinhaDoRanking& linha : Data1.linhas) {
        if (!e_do_ranking(linha, tipo)) continue;
        achou = vence(linha.valor);
        ++pos;
        if (achou) break;
    }
    if (achou || pos == 0) return true;
    const bool ha_lugar = pos < lugares_no_ranking;
    pos = ha_lugar ? static_cast<std::int16_t>(pos + 1) : sem_lugar;
    return ha_lugar;
}

void grava_resultado(const std::string& tipo, const std::string& resultado) {
    std::vector<LinhaDoRanking> novas = Data1.linhas;
    novas.push_back({tamanho_jogo, tipo, valor_guardado(resultado), nome_jogador, dia_curto(hoje())});
    std::stable_sort(novas.begin(), novas.end(), antes);
    int contador = 0;
    std::erase_if(novas,
                  [&](const auto& linha) { return e_do_ranking(linha, tipo) && ++contador > lugares_no_ranking; });
    Data1.grava(std::move(novas));
}

} // namespace

void ControleDeDados::Refresh() {
    Database banco = area_do_banco().OpenDatabase(banco_do_ranking);
    Recordset gm = banco.OpenRecordset("gm");
    std::vector<LinhaDoRanking> lidas;
    for (; !gm.EOF() && lidas.size() < maximo_de_linhas; gm.MoveNext()) {
        LinhaDoRanking& linha = lidas.emplace_back();
        for (const CampoDaLinha& campo : campos) linha.*campo.onde = gm.Fields(campo.nome).texto();
        linha.valor = sem_brancos(linha.valor);
    }
    std::stable_sort(lidas.begin(), lidas.end(), antes);
    linhas = std::move(lidas);
}

void ControleDeDados::grava(std::vector<LinhaDoRanking> novas) {
    {
        Database banco = area_do_banco().OpenDatabase(banco_do_ranking);
        Passo passo(area_do_banco());
        banco.executa("DELETE FROM gm");
        Recordset gm = banco.OpenRecordset("gm");
        for (const LinhaDoRanking& linha : novas) {
            gm.AddNew();
            for (const CampoDaLinha& campo : campos) gm.Fields(campo.nome) = linha.*campo.onde;
            gm.Update();
        }
        gm.Close();
        passo.confirma();
    }
    linhas = std::move(novas);
}

void prepara_ranking() {
    Tabela gm{"gm", {}, {}};
    for (const CampoDaLinha& campo : campos) gm.textos.emplace_back(campo.nome);
    const std::string aviso = prepara_arquivo({banco_do_ranking, "do ranking", "um ranking novo começa agora", {gm}});
    if (!aviso.empty()) avisos_do_banco.push_back(aviso);
}

bool bate_tempo(const std::string& tempo) {
    return bate(pos_tempo, tipo_tempo,
                [novo = valor_guardado(tempo)](const std::string& valor) { return novo < valor; });
}

bool bate_cliques(const std::string& cliques) {
    return bate(pos_cliques, tipo_cliques,
                [novo = numero_do_valor(cliques)](const std::string& valor) { return numero_do_valor(valor) > novo; });
}

void grava_tempo(const std::string& tempo) {
    grava_resultado(tipo_tempo, tempo);
}

void grava_cliques(const std::string& cliques) {
    grava_resultado(tipo_cliques, cliques);
}

void zera_ranking() {
    std::vector<LinhaDoRanking> outras = Data1.linhas;
    std::erase_if(outras, [](const LinhaDoRanking& linha) { return linha.peq_gra == tamanho_jogo; });
    Data1.grava(std::move(outras));
}

long numero_do_valor(const std::string& valor) {
    return std::strtol(valor.c_str(), nullptr, 10);
}

} // namespace verdalia
