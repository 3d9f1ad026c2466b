// As cópias semanais do banco da partida: guardar, e escolher a que toma o lugar de um banco perdido.
#include "data/banco.h"
#include "data/banco_interno.h"
#include "data/estado.h"

#include <algorithm>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t semanas_guardadas = 8;

// "\hortas00 semana 2026-03-01.mdb": o domingo em que a semana começou.
std::string caminho_da_copia(Dia dia) {
    const Dia domingo = dia - std::chrono::days{dia_da_semana(dia) - 1};
    const std::string raiz = arquivo_do_banco(nome_banco).stem();
    return std::string("\\").append(raiz).append(" semana ").append(texto_iso(domingo)).append(".mdb");
}

// O dia em que a cópia foi posta em dia; nada quando ela não serve.
std::optional<Dia> dia_da_copia(const ArquivoDeBanco& horta, const std::string& caminho) {
    try {
        if (!defeito(horta, caminho).empty()) return std::nullopt;
        return dia_de_iso(area_do_banco().OpenDatabase(caminho).texto("SELECT data FROM semana"));
    } catch (const ErroBanco&) {
        return std::nullopt;
    }
}

void tira_as_mais_velhas(const std::string& nova) {
    std::vector<std::string> outras = copias_da_horta();
    std::erase(outras, nova); // com o relógio atrasado, a de agora parece a mais velha
    std::error_code erro;
    for (std::size_t i = semanas_guardadas - 1; i < outras.size(); ++i) fs::remove(arquivo_do_banco(outras[i]), erro);
}

} // namespace

std::vector<std::string> copias_da_horta() {
    const fs::path pasta = arquivo_do_banco(nome_banco).parent_path();
    std::vector<std::string> achadas;
    std::error_code erro;
    for (fs::directory_iterator item(pasta, erro), fim; !erro && item != fim; item.increment(erro)) {
        const std::string nome = item->path().filename().string();
        const std::size_t data = nome.rfind(' ') + 1;
        const auto dia = dia_de_iso(std::string_view(nome).substr(data).substr(0, 10));
        if (dia && caminho_da_copia(*dia).substr(1) == nome) achadas.push_back(caminho_da_copia(*dia));
    }
    std::sort(achadas.rbegin(), achadas.rend());
    return achadas;
}

void guarda_copia() {
    try {
        const std::string caminho = caminho_da_copia(le_data_semana());
        faz_por_inteiro(caminho, [](Database& copia) {
            area_do_banco().OpenDatabase(nome_banco).copia_para(copia);
            if (copia.texto("PRAGMA quick_check(1)") != "ok") throw ErroBanco(0, "a cópia não confere");
        });
        tira_as_mais_velhas(caminho);
    } catch (const ErroBanco&) { // a horta está gravada; a cópia fica para a próxima vez
    }
}

std::string escolhe_copia(const ArquivoDeBanco& horta, const std::string& por_que,
                          const std::function<bool(const std::string&)>& aceita) {
    std::vector<std::string> de_lado = copias_da_horta();
    std::string escolhida;
    for (auto copia = de_lado.begin(); copia != de_lado.end(); ++copia) {
        const auto dia = dia_da_copia(horta, *copia);
        if (!dia) continue;
        if (aceita && aceita(por_que + " Há uma cópia da horta como estava em " + texto_do_dia(*dia) +
                             ". Deseja continuar com ela ?")) {
            escolhida = *copia;
            de_lado.erase(copia, de_lado.end());
        }
        break;
    }
    for (const std::string& copia : de_lado) poe_de_lado(arquivo_do_banco(copia));
    return escolhida;
}

} // namespace verdalia
