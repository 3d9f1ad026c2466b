#include "data/banco_arquivo.h"

#include "platform/base/arquivo.h"
#include "platform/base/relogio.h"

#include <algorithm>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t formato = 0x5652444C; // "VRDL", a marca no cabeçalho do arquivo
constexpr std::int64_t versao = 1;

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

void cria_tabelas(const ArquivoDeBanco& descrito, Database& banco) {
    for (const Tabela& tabela : descrito.tabelas) {
        std::string campos;
        for (const auto& [nomes, tipo] : {std::pair(tabela.inteiros, "INTEGER"), std::pair(tabela.textos, "TEXT")})
            for (const std::string& nome : nomes) campos += (campos.empty() ? "\"" : ", \"") + nome + "\" " + tipo;
        banco.executa(std::string("CREATE TABLE ") + tabela.nome + " (" + campos + ")");
    }
    if (descrito.enche) descrito.enche(banco);
}

void enche_do_nada(const ArquivoDeBanco& descrito, Database& banco) {
    Passo passo(area_do_banco());
    banco.executa("PRAGMA application_id = " + std::to_string(formato));
    banco.executa("PRAGMA user_version = " + std::to_string(versao));
    cria_tabelas(descrito, banco);
    passo.confirma();
}

// Cria o banco, do nada ou de uma cópia, e devolve o nome que o antigo passou a ter ("" quando não havia).
std::string cria_banco(const ArquivoDeBanco& descrito, const fs::path& arquivo, const std::string& copia) {
    std::string antigo;
    faz_por_inteiro(
        descrito.caminho,
        [&](Database& banco) {
            copia.empty() ? enche_do_nada(descrito, banco) : area_do_banco().OpenDatabase(copia).copia_para(banco);
        },
        // Também um diário órfão, de um banco que alguém apagou, sai do lugar: seria tomado pelo do banco novo.
        [&] { antigo = existe_algum(arquivo) ? poe_de_lado(arquivo) : ""; });
    return antigo;
}

bool tem_as_tabelas(const ArquivoDeBanco& descrito, Database& banco) {
    for (const Tabela& tabela : descrito.tabelas) {
        const std::vector<std::string> campos = banco.campos(tabela.nome);
        for (const auto& nomes : {tabela.inteiros, tabela.textos})
            for (const std::string& nome : nomes)
                if (std::find(campos.begin(), campos.end(), nome) == campos.end()) return false;
    }
    return true;
}

constexpr const char* danificado = "está danificado";

} // namespace

std::string defeito(const ArquivoDeBanco& descrito, const std::string& caminho) {
    std::error_code erro;
    if (fs::is_directory(arquivo_do_banco(caminho), erro)) return "é uma pasta, e não um arquivo";
    try {
        Database banco = area_do_banco().OpenDatabase(caminho);
        const std::int64_t marca = banco.numero("PRAGMA application_id");
        if (banco.numero("PRAGMA page_count") == 0) return danificado;
        if (marca != formato) return "não é deste jogo";
        if (banco.numero("PRAGMA user_version") > versao) return "é de uma versão mais nova do jogo";
        if (banco.texto("PRAGMA quick_check(1)") != "ok" || !tem_as_tabelas(descrito, banco)) return danificado;
        const Passo prova(
            area_do_banco()); // um arquivo que só se pode ler, ou que outro programa está gravando, falha aqui
        return "";
    } catch (const ErroBanco& erro) {
        if (erro.danificado()) return danificado;
        throw;
    }
}

void faz_por_inteiro(const std::string& caminho, const std::function<void(Database&)>& enche,
                     const std::function<void()>& antes_da_troca) {
    const fs::path arquivo = arquivo_do_banco(caminho), novo = arquivo_do_banco(caminho + ".novo");
    const auto limpa = [&novo] {
        std::error_code erro;
        for (const char* sufixo : companheiros) fs::remove(com(novo, sufixo), erro);
    };
    limpa();
    try {
        Database banco = area_do_banco().CreateDatabase(caminho + ".novo");
        enche(banco);
        banco.Close();
        if (antes_da_troca) antes_da_troca();
        muda_nome(novo, arquivo);
        if (const int codigo = espera_disco(arquivo.parent_path()); codigo != 0)
            falha_do_disco(arquivo, {codigo, std::generic_category()});
    } catch (...) {
        limpa(); // o espaço que ele tomava faz falta
        throw;
    }
    limpa();
}

std::string poe_de_lado(const fs::path& arquivo) {
    const fs::path destino = nome_de_lado(arquivo);
    for (const char* sufixo : companheiros)
        if (existe(com(arquivo, sufixo))) muda_nome(com(arquivo, sufixo), com(destino, sufixo));
    return destino.filename().string();
}

fs::path nome_de_lado(const fs::path& arquivo) {
    const std::string raiz = arquivo.stem().string() + " " + texto_iso(hoje());
    for (int vez = 1;; ++vez) {
        const std::string numero = vez == 1 ? "" : " (" + std::to_string(vez) + ")";
        fs::path destino = arquivo.parent_path() / (raiz + numero + arquivo.extension().string());
        if (!existe_algum(destino)) return destino;
    }
}

std::string prepara_arquivo(const ArquivoDeBanco& banco) {
    const fs::path arquivo = arquivo_do_banco(banco.caminho);
    const bool falta = !existe(arquivo);
    const std::string motivo = falta ? "não foi encontrado" : defeito(banco, banco.caminho);
    if (motivo.empty()) return "";
    const std::string frase =
        std::string("O arquivo ") + banco.de_que + ", \"" + arquivo.filename().string() + "\", " + motivo + ".";
    const std::string copia = banco.escolhe_copia ? banco.escolhe_copia(frase) : "";
    const std::string guardado = cria_banco(banco, arquivo, copia);
    if (falta) return "";
    return frase + " Ele foi guardado como \"" + guardado + "\" e " +
           (copia.empty() ? banco.recomeco : "a cópia tomou o lugar dele") + ".";
}

} // namespace verdalia
