#include "data/banco.h"

#include "data/banco_interno.h"
#include "data/estado.h"
#include "data/plano.h"

#include <algorithm>
#include <bitset>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

void anota(const std::string& frase) {
    if (std::find(avisos_do_banco.begin(), avisos_do_banco.end(), frase) == avisos_do_banco.end())
        avisos_do_banco.push_back(frase);
}

// ---- Leitura

// Nenhuma tabela do jogo chega perto disto; o que passa daqui não é lido, para que um arquivo inchado não prenda o
// jogo.
constexpr int maximo_de_registros = 10000;

std::optional<std::int16_t> valor(Recordset& registros, const char* campo, int menor, int maior) {
    const auto numero = registros.Fields(campo).inteiro();
    if (!numero || *numero < menor || *numero > maior) return std::nullopt;
    return static_cast<std::int16_t>(*numero);
}

void estranha() {
    const fs::path arquivo = arquivo_do_banco(nome_banco);
    if (copia_por_fazer.empty()) copia_por_fazer = nome_de_lado(arquivo).filename().string();
    anota("Alguns registros da horta guardada não faziam sentido e ficaram de fora. O resto foi lido. O arquivo como "
          "estava será guardado como \"" +
          copia_por_fazer + "\".");
}

// Uma cultura que já terminou; o que não se entende é como nenhuma, e não custa o canteiro.
std::int16_t lembranca(Recordset& registros, const char* campo) {
    if (registros.Fields(campo).nulo()) return cult_nenhuma;
    const auto cultura = valor(registros, campo, cult_nenhuma, n_culturas);
    if (cultura && *cultura != cult_vago) return *cultura;
    estranha();
    return cult_nenhuma;
}

// Entrega cada registro da tabela a `entra`, que diz se o aceitou.
template <typename Entra> void percorre(const char* tabela, Entra entra) {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset registros = banco.OpenRecordset(tabela);
    bool saltou = false;
    int lidos = 0;
    for (; !registros.EOF() && lidos < maximo_de_registros; registros.MoveNext(), ++lidos)
        if (!entra(registros)) saltou = true;
    if (saltou || !registros.EOF()) estranha();
}

// ---- Gravação

void copia_o_que_estava() {
    if (copia_por_fazer.empty()) return;
    const fs::path arquivo = arquivo_do_banco(nome_banco), copia = arquivo.parent_path() / copia_por_fazer;
    const fs::path pela_metade = fs::path(copia) += ".novo";
    std::error_code erro;
    fs::copy_file(arquivo, pela_metade, fs::copy_options::overwrite_existing, erro);
    if (!erro) fs::rename(pela_metade, copia, erro);
    if (erro)
        throw ErroBanco(0, "O arquivo da horta não pôde ser copiado antes da gravação (" + erro.message() +
                               "). Veja se há espaço no disco.");
    copia_por_fazer.clear();
}

} // namespace

void reescreve(const std::string& tabela, const std::function<void(Recordset&)>& escreve) {
    copia_o_que_estava();
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Passo passo(area_do_banco());
    banco.executa("DELETE FROM " + tabela);
    Recordset registros = banco.OpenRecordset(tabela);
    escreve(registros);
    registros.Close();
    passo.confirma();
}

bool le_canteiros() {
    st_cod_cult.fill(cult_nenhuma);
    st_nome.fill("");
    st_idade.fill(0);
    st_check.fill(0);
    st_last_i_cu.fill(cult_nenhuma);
    st_last_last_i_cu.fill(cult_nenhuma);

    bool plantada = false;
    std::bitset<n_canteiros> visto;
    percorre("st", [&](Recordset& st) {
        const auto i = valor(st, "indice", 0, n_canteiros - 1);
        const auto c = valor(st, "cod_cult", cult_vago, n_culturas);
        if (!i || !c || visto[*i]) return false;
        const auto idade = valor(st, "idade", 0, std::max(0, ciclo_horta[*c] - 1));
        const auto check = valor(st, "check", -1, 0);
        if (!idade || !check) return false;
        visto.set(*i);
        st_cod_cult[*i] = *c;
        st_nome[*i] = nome_cult[*c];
        st_idade[*i] = *idade;
        st_check[*i] = *check;
        st_last_i_cu[*i] = lembranca(st, "last_i_cu");
        st_last_last_i_cu[*i] = lembranca(st, "last_last_i_cu");
        plantada = plantada || *c > cult_vago;
        return true;
    });
    return le_leiras() || plantada;
}

bool le_leiras() {
    sem_cod_cult.fill(cult_nenhuma);
    sem_nome.fill("");
    sem_idade.fill(0);
    sem_check.fill(0);

    bool semeada = false;
    std::bitset<n_leiras> visto;
    percorre("sem", [&](Recordset& sem) {
        const auto i = valor(sem, "indice", 0, n_leiras - 1);
        const auto c = valor(sem, "cod_cult", cult_vago, n_culturas);
        if (!i || !c || visto[*i] || (*c > cult_vago && ciclo_sem[*c] == 0)) return false;
        const auto idade = valor(sem, "idade", 0, ciclo_sem[*c]);
        const auto check = valor(sem, "check", -1, 0);
        if (!idade || !check) return false;
        visto.set(*i);
        sem_cod_cult[*i] = *c;
        sem_nome[*i] = nome_cult[*c];
        sem_idade[*i] = *idade;
        sem_check[*i] = *check;
        semeada = semeada || *c > cult_vago;
        return true;
    });
    return semeada;
}

void le_pedido() {
    int area_pedida = 0;
    std::bitset<n_culturas + 1> visto;
    percorre("seq", [&](Recordset& seq) {
        const auto c = valor(seq, "indice", 1, n_culturas);
        const auto pedido = valor(seq, "seq", 0, area_maxima);
        // O pedido que não cabe mais na horta fica de fora; os de antes valem.
        if (!c || !pedido || visto[*c] || area_pedida + *pedido * area_unidade[*c] > area_maxima) return false;
        visto.set(*c);
        seq_pedido[*c] = *pedido;
        area_pedida += *pedido * area_unidade[*c];
        return true;
    });
}

void grava_canteiros() {
    Passo passo(area_do_banco()); // as três tabelas vão para o disco juntas
    reescreve("st", [previsao = previsao_ligada()](Recordset& st) {
        const auto& cultura = previsao ? bak_st_cod_cult : st_cod_cult;
        const auto& idade = previsao ? bak_st_idade : st_idade;
        const auto& check = previsao ? bak_st_check : st_check;
        const auto& ultima = previsao ? bak_st_last_i_cu : st_last_i_cu;
        const auto& penultima = previsao ? bak_st_last_last_i_cu : st_last_last_i_cu;
        for (int i = 0; i < n_canteiros; ++i) {
            if (cultura[i] == cult_nenhuma) continue;
            st.AddNew();
            st.Fields("indice") = i;
            st.Fields("cod_cult") = cultura[i];
            st.Fields("idade") = idade[i];
            st.Fields("check") = check[i];
            st.Fields("last_i_cu") = ultima[i];
            st.Fields("last_last_i_cu") = penultima[i];
            st.Update();
        }
    });
    grava_leiras();
    grava_pedido();
    passo.confirma();
}

void grava_leiras() {
    reescreve("sem", [previsao = previsao_ligada()](Recordset& sem) {
        const auto& cultura = previsao ? bak_sem_cod_cult : sem_cod_cult;
        const auto& idade = previsao ? bak_sem_idade : sem_idade;
        const auto& check = previsao ? bak_sem_check : sem_check;
        for (int i = 0; i < n_leiras; ++i) {
            if (cultura[i] == cult_nenhuma) continue;
            sem.AddNew();
            sem.Fields("indice") = i;
            sem.Fields("cod_cult") = cultura[i];
            sem.Fields("idade") = idade[i];
            sem.Fields("check") = check[i];
            sem.Update();
        }
    });
}

void grava_pedido() {
    reescreve("seq", [](Recordset& seq) {
        for (int c = 1; c <= n_culturas; ++c) {
            seq.AddNew();
            seq.Fields("indice") = c;
            seq.Fields("seq") = seq_pedido[c];
            seq.Update();
        }
    });
}

void le_cd() {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    if (!semana.EOF()) unidade_cd = valor(semana, "cd", 0, 5).value_or(unidade_cd);
}

void grava_cd() {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    semana.Edit();
    semana.Fields("cd") = unidade_cd;
    semana.Update();
}

Dia le_data_semana() {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    if (semana.EOF()) return hoje();
    return dia_de_iso(semana.Fields("data").texto()).value_or(hoje());
}

void grava_semana(Dia dia) {
    Passo passo(area_do_banco());
    grava_canteiros();
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    semana.Edit();
    semana.Fields("data") = texto_iso(dia);
    semana.Update();
    semana.Close();
    passo.confirma();
}

} // namespace verdalia
