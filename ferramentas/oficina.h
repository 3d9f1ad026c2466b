// A oficina das figuras e dos textos: lê a lista, vê o que está velho e faz de novo só isso.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

enum class Tipo { figura, texto };

// Um arquivo a fazer: uma linha da lista.
struct Midia {
    int numero = 0;              // linha da lista
    std::string linha;           // a linha como está escrita
    Tipo tipo = Tipo::figura;    // pela extensão: bmp e jpg, txt
    std::string arquivo;         // caminho a partir da pasta do programa
    std::string fonte;           // arquivo em arte/ ou textos/ conforme o tipo; "" = ainda não há
    std::string estilo;          // folha arte/<estilo>.css posta por cima; "" = nenhuma
    int quadro = 0;              // de 1 em diante, na tabela ao lado da fonte; 0 = figura parada
    int largura = 0, altura = 0; // tamanho lógico; a figura é feita com o dobro
};

// A lista: uma linha de nomes de coluna e uma linha por arquivo, separada por tabulações. Linha malformada ou
// arquivo repetido: std::runtime_error com o número da linha.
std::vector<Midia> le_manifesto(std::string_view texto);

struct Pedido {
    std::filesystem::path projeto; // onde estão arte/, textos/ e ferramentas/midias.tsv
    std::filesystem::path
        construcao;         // as mídias vão para construcao/programa, o registro para construcao/midias.registro
    std::string ferramenta; // marca de quem faz: quando muda, tudo é feito de novo
};

struct Balanco {
    int feitas = 0, removidas = 0;
    int faltam[2] = {};             // arquivos que são só guarda-lugar, por Tipo
    std::vector<std::string> erros; // um por defeito, com o nome da fonte
};

// Faz o que falta, o que mudou de fonte, de linha ou de ferramenta, e apaga o que saiu da lista. Um arquivo que falha
// não impede os outros e é tentado de novo na próxima vez.
Balanco produz(const Pedido& pedido);

} // namespace verdalia
