// Ler e gravar arquivos inteiros.
#pragma once

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace verdalia {

// O conteúdo do arquivo; std::runtime_error quando não se abre.
inline std::string le_arquivo(const std::filesystem::path& nome) {
    std::ifstream arquivo(nome, std::ios::binary);
    if (!arquivo) throw std::runtime_error("não foi possível abrir " + nome.string());
    return {std::istreambuf_iterator<char>(arquivo), {}};
}

// Grava por cima, criando as pastas que faltam; std::runtime_error quando não coube ou não pôde.
inline void grava_arquivo(const std::filesystem::path& nome, std::string_view conteudo) {
    std::error_code erro;
    std::filesystem::create_directories(nome.parent_path(), erro);
    std::ofstream arquivo(nome, std::ios::binary | std::ios::trunc);
    arquivo.write(conteudo.data(), std::streamsize(conteudo.size()));
    if (!arquivo.flush()) throw std::runtime_error("não foi possível gravar " + nome.string());
}

// Os números em sequência de bytes, o menos significativo primeiro.
template <class Numero> std::string bytes_de(std::initializer_list<Numero> numeros) {
    std::string bytes;
    for (const Numero numero : numeros)
        for (std::size_t i = 0; i < sizeof numero; ++i) bytes += static_cast<char>(numero >> (8 * i) & 255);
    return bytes;
}

} // namespace verdalia
