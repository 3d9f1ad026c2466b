// O arquivo .rpt: um texto curto, em UTF-8, que diz o que um relatório impresso mostra. Uma linha é "palavra: valor";
// as vazias e as que começam com # não contam. Os arquivos do programa explicam as palavras.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

struct ColunaImpressa {
    int linha = 0; // do arquivo .rpt, para dizer onde está um engano
    std::string campo;
    double largura = 0; // em milímetros; nas células do mapa, 0
    std::string texto;  // o cabeçalho da coluna, ou o que vem antes do valor da célula
};

// Um pedaço do relatório, tirado de uma tabela do banco.
struct BlocoImpresso {
    enum Tipo {
        lista,  // linhas de trabalho com um quadradinho, por seção e por grupo
        mapa,   // um registro por fileira e uma célula por canteiro: os campos cult1, cult2...
        tabela, // um registro por linha, com cabeçalho
    };
    Tipo tipo = lista;
    int linha = 0;
    std::string nome; // da tabela
    std::string titulo, secao, grupo, vazio;
    std::vector<std::string> ordem, notas;
    std::vector<ColunaImpressa> colunas;
    std::vector<ColunaImpressa> celulas;
};

struct ModeloDeRelatorio {
    std::string arquivo; // o nome, para as mensagens
    std::string titulo, subtitulo, rodape;
    std::vector<BlocoImpresso> blocos;
};

inline constexpr double largura_util = 180; // milímetros da folha em que se imprime

// Entende o texto de um .rpt; `arquivo` é o nome dele. Lança std::runtime_error, que diz o arquivo, a linha e o engano.
ModeloDeRelatorio entende_modelo(const std::string& arquivo, std::string_view texto);

// Lança o engano achado numa linha do arquivo.
[[noreturn]] void engano_no_modelo(const std::string& arquivo, int linha, const std::string& qual);

} // namespace verdalia
