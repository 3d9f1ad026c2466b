#include "platform/tela/relatorio.h"

#include "platform/base/arquivo.h"
#include "platform/base/caminhos.h"
#include "platform/tela/desenho_rpt.h"
#include "platform/tela/impressora.h"

#include <cstdlib>
#include <stdexcept>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t maior_modelo = 65536; // bytes

ModeloDeRelatorio le_modelo(const std::string& caminho) {
    const std::string nome = caminho.substr(caminho.rfind('\\') + 1);
    const auto achado = acha(caminho);
    if (!achado) throw std::runtime_error("Falta o arquivo \"" + nome + "\" na pasta do programa.");
    return entende_modelo(nome, le_arquivo(*achado, maior_modelo));
}

// A pasta como a família a conhece: "~" no lugar da pasta pessoal.
std::string pasta_curta(const fs::path& pasta) {
    const char* casa = std::getenv("HOME");
    const fs::path dentro = casa != nullptr ? pasta.lexically_relative(casa) : "";
    return dentro.empty() || *dentro.begin() == ".." ? pasta.string() : (fs::path("~") / dentro).string();
}

const char* por_que_nao(Entrega entrega) {
    switch (entrega) {
    case Entrega::recusada:
        return "A impressora não aceitou o relatório, ou nenhuma foi escolhida neste computador.";
    case Entrega::sem_resposta:
        return "A impressora não respondeu em 10 segundos.";
    default:
        return "Não há impressora neste computador.";
    }
}

Impresso entrega(const fs::path& arquivo) {
    const std::string guardado =
        " guardado como \"" + arquivo.filename().string() + "\", na pasta " + pasta_curta(arquivo.parent_path());
    const Entrega entregue = manda_imprimir(arquivo);
    if (entregue == Entrega::baixada)
        return {Impresso::no_visor, "O navegador baixou o relatório, com o nome \"" + arquivo.filename().string() +
                                        "\". Abra-o ali para o ver e imprimir."};
    if (entregue == Entrega::aceita)
        return {Impresso::na_impressora, "O relatório foi para a impressora e ficou" + guardado + "."};
    const std::string frase = por_que_nao(entregue) + std::string(" O relatório ficou") + guardado;
    if (abre_no_visor(arquivo)) return {Impresso::no_visor, frase + ", e foi aberto para você ver."};
    return {Impresso::so_guardado, frase + ". Abra-o com um programa que mostre arquivos PDF."};
}

} // namespace

std::string Relatorio::pdf(Dia dia) const {
    const std::string ano = texto_iso(dia).substr(0, 4), semana = std::to_string(100 + semana_do_ano(dia)).substr(1);
    return "\\relatorios\\" + guarda + ' ' + ano + '-' + semana + ".pdf";
}

Impresso Relatorio::imprime(const std::string& banco, Dia dia) const {
    try {
        const std::string bytes = desenha_relatorio(le_modelo(arquivo), banco, dia);
        const fs::path guardado = para_gravar(pdf(dia));
        grava_arquivo(guardado, bytes);
        return entrega(guardado);
    } catch (const std::runtime_error& erro) {
        return {Impresso::em_lugar_nenhum,
                "O relatório não pôde ser impresso. " + std::string(erro.what()) + " A horta continua como estava."};
    }
}

} // namespace verdalia
