// Arquivos inteiros: lidos de uma vez e gravados de uma vez, para que uma falta de luz deixe o velho ou o novo.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalia {

// Os bytes do arquivo; lança std::runtime_error, com a explicação, quando ele não pode ser lido ou passa de `maximo`.
std::string le_arquivo(const std::filesystem::path& arquivo, std::size_t maximo);

// Põe os bytes no arquivo: escreve ao lado, espera o disco e só então toma o nome. Lança std::runtime_error, com a
// explicação, e o que havia antes fica como estava.
void grava_arquivo(const std::filesystem::path& arquivo, std::string_view bytes);

// Espera que o disco tenha os arquivos da pasta com os nomes de agora; num navegador, também o que está dentro deles.
// Devolve 0, ou o errno (ENOSPC, EDQUOT ou EIO) do disco que falhou.
int espera_disco(const std::filesystem::path& pasta);

} // namespace verdalia
