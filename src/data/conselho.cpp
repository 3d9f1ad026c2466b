#include "data/conselho.h"

#include "data/estado.h"
#include "data/plano.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

namespace verdalia {

namespace {

const std::string fora_do_pedido = "não está no pedido da feira";

std::string contados(int quantos, const std::string& um, const std::string& muitos) {
    return std::to_string(quantos) + " " + (quantos == 1 ? um : muitos);
}

std::string daqui_a(int semanas) {
    return "daqui a " + contados(semanas, "semana", "semanas");
}

// O que a pessoa faz em cada trato.
std::string fazer(std::string_view codigo) {
    constexpr struct {
        std::string_view codigo, fazer;
    } verbos[] = {{"LI", "limpar"},       {"REP", "repor as mudas que falharam"},
                  {"AM", "amontoar"},     {"COP", "colher uma parte"},
                  {"COF", "colher tudo"}, {"DES", "desbastar"},
                  {"TR", "transplantar"}};
    for (const auto& v : verbos)
        if (v.codigo == codigo) return std::string(v.fazer);
    return "";
}

// As semanas que faltam para o mais velho dos lugares novos deixar de contar; 0 quando nenhum conta.
// `a_mais` é o que a cultura já tinha vivido antes de chegar ao lugar.
int ate_envelhecer(std::span<const std::int16_t> culturas, std::span<const std::int16_t> idades, std::int16_t c,
                   int quantos, int a_mais) {
    std::vector<int> faltam;
    for (std::size_t i = 0; i < culturas.size(); ++i)
        if (culturas[i] == c && idades[i] + a_mais < intervalo_plantio[c])
            faltam.push_back(intervalo_plantio[c] - idades[i] - a_mais);
    // O plantio volta a ser pedido quando sobram menos novos do que o pedido quer.
    std::sort(faltam.begin(), faltam.end());
    const int sobra = static_cast<int>(faltam.size()) - quantos;
    return sobra < 0 ? 0 : faltam[static_cast<std::size_t>(sobra)];
}

// Daqui a quantas semanas há muda pronta da cultura; -1 quando nenhuma leira a tem.
int ate_haver_muda(std::int16_t c) {
    int menor = -1;
    for (int r = 0; r < n_leiras; ++r)
        if (const int falta = ciclo_sem[c] - sem_idade[r]; sem_cod_cult[r] == c && (menor < 0 || falta < menor))
            menor = falta;
    return menor;
}

// O trato de agora e o próximo, segundo o calendário `oper` de um lugar que vive `semanas`.
std::string agora_e_depois(std::string (*oper)(std::int16_t, std::int16_t), std::int16_t c, std::int16_t idade,
                           int semanas, bool feito) {
    std::string texto;
    if (const std::string agora = fazer(oper(c, idade)); idade > 0 && !agora.empty())
        texto = " · agora: " + agora + (feito ? " (feito)" : "");
    for (int depois = idade + 1; depois < semanas; ++depois)
        if (const std::string proximo = fazer(oper(c, static_cast<std::int16_t>(depois))); !proximo.empty())
            return texto.append("\ndepois: ").append(proximo).append(", ").append(daqui_a(depois - idade));
    return texto;
}

std::string cabecalho(const std::string& lugar, std::int16_t c, std::int16_t idade, int semanas) {
    return lugar + " · " + nome_cult[c] + " · semana " + std::to_string(idade + 1) + " de " + std::to_string(semanas);
}

} // namespace

std::string conselho_de_plantio(std::int16_t cod_cult) {
    conta_canteiros_novos();
    const std::string celula = celula_plano(cod_cult);
    const bool pedida = seq_pedido[cod_cult] > 0;
    if (celula == "x") {
        const int semanas = ate_haver_muda(cod_cult);
        if (semanas > 0) return "as mudas ficam prontas " + daqui_a(semanas);
        return pedida ? "semeie antes na sementeira" : fora_do_pedido;
    }
    if (celula != "-")
        return (ciclo_sem[cod_cult] > 0 ? "transplante " : "plante ") +
               contados(std::stoi(celula), "canteiro", "canteiros") + " nesta semana";
    if (!pedida) return fora_do_pedido;
    return "o próximo plantio é " +
           daqui_a(ate_envelhecer(canteiros(st_cod_cult), canteiros(st_idade), cod_cult, seq_pedido[cod_cult], 0));
}

std::string conselho_de_semeadura(std::int16_t cod_cult) {
    conta_leiras_novas();
    if (leiras_a_semear(cod_cult) > 0) return "semeie uma leira nesta semana";
    if (seq_pedido[cod_cult] == 0) return fora_do_pedido;
    const int por_leira = ate_envelhecer(leiras(sem_cod_cult), leiras(sem_idade), cod_cult, 1, 0);
    const int por_canteiro =
        ate_envelhecer(canteiros(st_cod_cult), canteiros(st_idade), cod_cult, 1, ciclo_sem[cod_cult]);
    return "a próxima semeadura é " + daqui_a(std::max(por_leira, por_canteiro));
}

std::string situacao_do_canteiro(int i) {
    const std::int16_t c = st_cod_cult[i];
    if (c > cult_vago)
        return cabecalho(nome_canteiro(i), c, st_idade[i], ciclo_horta[c]) +
               agora_e_depois(oper_canteiro, c, st_idade[i], ciclo_horta[c], st_check[i] != 0);
    std::string texto = nome_canteiro(i) + " · livre";
    if (st_last_i_cu[i] > cult_vago) texto += "\nantes: " + nome_cult[st_last_i_cu[i]];
    if (st_last_last_i_cu[i] > cult_vago) texto += ", " + nome_cult[st_last_last_i_cu[i]];
    return texto;
}

std::string situacao_da_leira(int r) {
    const std::int16_t c = sem_cod_cult[r];
    if (c <= cult_vago) return nome_leira(r) + " · livre";
    const std::string lugar = cabecalho(nome_leira(r), c, sem_idade[r], ciclo_sem[c] + 1);
    if (sem_idade[r] == ciclo_sem[c]) return lugar + "\npronta para transplantar: leve-a nesta semana para a horta";
    return lugar + agora_e_depois(oper_leira, c, sem_idade[r], ciclo_sem[c] + 1, sem_check[r] != 0);
}

} // namespace verdalia
