// Sons: efeitos feitos de notas e o tom que guarda o lugar de uma gravação. WAV de 22050 Hz, mono, 16 bits.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

// Amostras de -1 a 1, 22050 por segundo.
using Amostras = std::vector<double>;

// Soma as notas do arquivo `nome` na tabela de efeitos (o cabeçalho dela diz as colunas). Linha malformada ou
// nenhuma nota com esse nome: std::runtime_error.
Amostras efeito(std::string_view tabela, const std::string& nome);

// Um tom suave, de altura tirada do nome, que sobe e some sem estalo.
Amostras tom_de_espera(const std::string& nome, double segundos);

void grava_wav(const Amostras& amostras, const std::filesystem::path& destino);

} // namespace verdalia
