// Texto: UTF-8 dentro do programa, Windows-1252 nos arquivos de documento.
#pragma once

#include <string>
#include <string_view>

namespace verdalia {

// Passa de Windows-1252 a UTF-8. Todo byte tem par: os cinco que a tabela deixa vagos viram U+0081, U+008D...
std::string utf8_de_1252(std::string_view texto);

// Passa de UTF-8 a Windows-1252. O que a tabela não tem, e cada byte que não é UTF-8, vira '?'.
std::string cp1252_de_utf8(std::string_view texto);

// A conversão simples de número em texto: um branco na frente quando não é negativo (" 5", "-5").
std::string texto_de_numero(long numero);

// O texto UTF-8 em maiúsculas, acentos inclusive. Bytes que não são UTF-8 ficam como estão.
std::string maiusculas(std::string_view texto);

} // namespace verdalia
