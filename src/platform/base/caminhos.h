// As raízes dos arquivos. Um caminho do jogo é texto UTF-8 com barras invertidas: "\hortas00.mdb" está na pasta do
// programa e "D:\anima\port00.bmp" na unidade 1. Maiúsculas e minúsculas não fazem diferença na busca.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

// As seis unidades, pelo valor de `unidade_cd`.
inline constexpr std::array<const char*, 6> letras_de_unidade = {"C:", "D:", "E:", "F:", "G:", "H:"};

// Pastas onde o sistema monta volumes; os testes põem outras antes de `procura_unidades`.
extern std::vector<std::filesystem::path> pastas_de_montagem;

// Troca as duas pastas do programa: a do jogador (gravável, vista primeiro) e a instalada (só leitura).
// Sem esta chamada valem $XDG_DATA_HOME/verdalia e a pasta instalada junto do executável.
void define_pastas(const std::filesystem::path& jogador, const std::filesystem::path& instalada);

// O arquivo ou a pasta que existe sob esse nome, para ler. Nada quando não há, quando a unidade não está
// montada ou quando o caminho é torto (sem raiz, com "..", "/" ou byte nulo).
std::optional<std::filesystem::path> acha(std::string_view caminho);

// Onde gravar "\nome": sempre na pasta do jogador, criada se preciso (o arquivo não é criado).
// Lança std::runtime_error com a explicação quando a pasta não pode ser criada ou o caminho é torto.
std::filesystem::path para_gravar(std::string_view caminho);

// Olha de novo que volumes com uma pasta `anima` estão montados e os põe nas unidades 1 a 5, por ordem de nome.
void procura_unidades();

// O nome do volume na unidade 1 a 5; "" quando não há, e na unidade 0, que é a própria pasta do programa.
std::string nome_da_unidade(int unidade);

// Há agora uma pasta `anima` nessa unidade? Falso fora de 0 a 5.
bool unidade_tem_figuras(int unidade);

} // namespace verdalia
