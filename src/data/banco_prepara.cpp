// A vida do arquivo do banco antes da primeira leitura: criar, conferir, pôr de lado.
#include "data/banco.h"

#include "data/banco_interno.h"
#include "data/estado.h"

#include <algorithm>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t formato = 0x5652444C; // "VRDL", a marca no cabeçalho do arquivo
constexpr std::int64_t versao = 1;

struct Tabela {
    const char* nome;
    std::vector<std::string> inteiros, textos;
};

std::vector<Tabela> tabelas_do_banco() {
    Tabela mapa{"mapa_horta", {}, {"ordem"}};
    for (const char* campo : {"cult", "idade", "trato", "p_fim"})
        for (int coluna = 1; coluna <= 10; ++coluna) mapa.textos.push_back(campo + std::to_string(coluna));
    return {
        {"semana", {"cd"}, {"data"}},
        {"st", {"indice", "cod_cult", "idade", "check", "last_i_cu", "last_last_i_cu"}, {}},
        {"sem", {"indice", "cod_cult", "idade", "check"}, {}},
        {"seq", {"indice", "seq"}, {}},
        {"relat", {"hs", "ord", "sem"}, {"trato", "aonde", "cultura", "cabec1"}},
        {"rr", {}, {"mod", "cult", "fam", "ucult", "ufam"}},
        mapa,
    };
}

[[noreturn]] void falha_do_disco(const fs::path& arquivo, const std::error_code& erro) {
    throw ErroBanco(0, "O arquivo \"" + arquivo.string() + "\" não pôde ser preparado (" + erro.message() +
                           "). Veja o disco e as permissões da pasta.");
}

// O banco e os arquivos que o SQLite põe ao lado dele: andam sempre juntos, o banco primeiro.
constexpr const char* companheiros[] = {"", "-journal", "-wal", "-shm"};

fs::path com(const fs::path& arquivo, const char* sufixo) {
    return fs::path(arquivo) += sufixo;
}

bool existe(const fs::path& arquivo) {
    std::error_code erro;
    const fs::file_status estado = fs::symlink_status(arquivo, erro);
    if (estado.type() == fs::file_type::none) falha_do_disco(arquivo, erro);
    return estado.type() != fs::file_type::not_found;
}

bool existe_algum(const fs::path& arquivo) {
    return std::any_of(std::begin(companheiros), std::end(companheiros),
                       [&](const char* sufixo) { return existe(com(arquivo, sufixo)); });
}

void muda_nome(const fs::path& de, const fs::path& para) {
    std::error_code erro;
    fs::rename(de, para, erro);
    if (erro) falha_do_disco(de, erro);
}

// Dá ao banco o nome de lado, e o devolve.
std::string poe_de_lado(const fs::path& arquivo) {
    const fs::path destino = nome_de_lado(arquivo);
    for (const char* sufixo : companheiros)
        if (existe(com(arquivo, sufixo))) muda_nome(com(arquivo, sufixo), com(destino, sufixo));
    return destino.filename().string();
}

void cria_tabelas(Database& banco) {
    for (const Tabela& tabela : tabelas_do_banco()) {
        std::string campos;
        for (const auto& [nomes, tipo] : {std::pair(tabela.inteiros, "INTEGER"), std::pair(tabela.textos, "TEXT")})
            for (const std::string& nome : nomes) campos += (campos.empty() ? "\"" : ", \"") + nome + "\" " + tipo;
        banco.executa(std::string("CREATE TABLE ") + tabela.nome + " (" + campos + ")");
    }
    Recordset semana = banco.OpenRecordset("semana");
    semana.AddNew();
    semana.Fields("data") = texto_iso(hoje());
    semana.Fields("cd") = 0;
    semana.Update();
    Recordset seq = banco.OpenRecordset("seq");
    for (int c = 1; c <= n_culturas; ++c) {
        seq.AddNew();
        seq.Fields("indice") = c;
        seq.Fields("seq") = 0;
        seq.Update();
    }
}

// Cria o banco e devolve o nome que o antigo passou a ter ("" quando não havia). O novo nasce sob outro nome e só
// toma o seu quando está inteiro: um disco cheio ou uma falta de luz não desfaz nada do que havia.
std::string cria_banco(const fs::path& arquivo) {
    const std::string caminho_novo = nome_banco + ".novo";
    const fs::path novo = arquivo_do_banco(caminho_novo);
    std::error_code erro;
    for (const char* sufixo : companheiros) fs::remove(com(novo, sufixo), erro);
    {
        Database banco = area_do_banco().CreateDatabase(caminho_novo);
        Passo passo(area_do_banco());
        banco.executa("PRAGMA application_id = " + std::to_string(formato));
        banco.executa("PRAGMA user_version = " + std::to_string(versao));
        cria_tabelas(banco);
        passo.confirma();
    }
    // Também um diário órfão, de um banco que alguém apagou, sai do lugar: seria tomado pelo do banco novo.
    std::string antigo = existe_algum(arquivo) ? poe_de_lado(arquivo) : "";
    muda_nome(novo, arquivo);
    for (const char* sufixo : companheiros) fs::remove(com(novo, sufixo), erro);
    return antigo;
}

bool tem_as_tabelas(Database& banco) {
    for (const Tabela& tabela : tabelas_do_banco()) {
        const std::vector<std::string> campos = banco.campos(tabela.nome);
        for (const auto& nomes : {tabela.inteiros, tabela.textos})
            for (const std::string& nome : nomes)
                if (std::find(campos.begin(), campos.end(), nome) == campos.end()) return false;
    }
    return true;
}

constexpr const char* danificado = "está danificado";

// Por que o arquivo não serve; "" quando serve.
std::string defeito() {
    try {
        Database banco = area_do_banco().OpenDatabase(nome_banco);
        const std::int64_t marca = banco.numero("PRAGMA application_id");
        if (banco.numero("PRAGMA page_count") == 0) return danificado;
        if (marca != formato) return "não é deste jogo";
        if (banco.numero("PRAGMA user_version") > versao) return "é de uma versão mais nova do jogo";
        if (banco.texto("PRAGMA quick_check(1)") != "ok" || !tem_as_tabelas(banco)) return danificado;
        const Passo prova(
            area_do_banco()); // um arquivo que só se pode ler, ou que outro programa está gravando, falha aqui
        return "";
    } catch (const ErroBanco& erro) {
        if (erro.danificado()) return danificado;
        throw;
    }
}

// O registro da semana tem de existir e fazer sentido: dele dependem a data e a unidade das mídias.
void completa_semana() {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    const bool falta = semana.EOF();
    const bool data_ruim = falta || !dia_de_iso(semana.Fields("data").texto());
    const auto cd = falta ? std::nullopt : semana.Fields("cd").inteiro();
    const bool cd_ruim = !cd || *cd < 0 || *cd > 5;
    if (!data_ruim && !cd_ruim) return;
    falta ? semana.AddNew() : semana.Edit();
    if (data_ruim) semana.Fields("data") = texto_iso(hoje());
    if (cd_ruim) semana.Fields("cd") = 0;
    semana.Update();
    avisos_do_banco.emplace_back(
        data_ruim ? "A data da última semana tinha-se perdido. A horta continua a contar a partir de hoje."
                  : "A unidade das figuras tinha-se perdido. Escolha-a de novo.");
}

} // namespace

fs::path nome_de_lado(const fs::path& arquivo) {
    const std::string raiz = arquivo.stem().string() + " " + texto_iso(hoje());
    for (int vez = 1;; ++vez) {
        const std::string numero = vez == 1 ? "" : " (" + std::to_string(vez) + ")";
        const fs::path destino = arquivo.parent_path() / (raiz + numero + arquivo.extension().string());
        if (!existe_algum(destino)) return destino;
    }
}

void prepara_banco() {
    copia_por_fazer.clear();
    const fs::path arquivo = arquivo_do_banco(nome_banco);
    if (!existe(arquivo)) {
        cria_banco(arquivo);
        return;
    }
    if (const std::string motivo = defeito(); !motivo.empty()) {
        const std::string guardado = cria_banco(arquivo);
        avisos_do_banco.push_back("O arquivo da horta, \"" + arquivo.filename().string() + "\", " + motivo +
                                  ". Ele foi guardado como \"" + guardado + "\" e uma horta nova começa agora.");
        return;
    }
    completa_semana();
}

} // namespace verdalia
