#include "platform/base/texto.h"

#include <gtest/gtest.h>

namespace verdalia {

TEST(Texto, TodoByteVaiEVoltaEOQueNaoCabeViraInterrogacao) {
    std::string todos;
    for (int i = 0; i < 256; ++i) todos += static_cast<char>(i);
    EXPECT_EQ(cp1252_de_utf8(utf8_de_1252(todos)), todos);
    EXPECT_EQ(utf8_de_1252("Chic\xF3ria \x80 \x96 \x9C"), "Chicória € – œ");
    const std::pair<const char*, const char*> casos[] = {{"a→b😀c", "a?b?c"},
                                                         {"\x80", "?"},           // continuação solta
                                                         {"\xC2\x80", "?"},       // U+0080 não está na tabela
                                                         {"\xC3", "?"},           // cortado no meio
                                                         {"\xC0\xAF", "??"},      // forma longa demais
                                                         {"\xED\xA0\x80", "???"}, // metade de um par
                                                         {"\xF4\x90\x80\x80x", "????x"}};
    for (const auto& [utf8, esperado] : casos) EXPECT_EQ(cp1252_de_utf8(utf8), esperado) << utf8;
    // Os números levam um branco, e as maiúsculas têm acento.
    EXPECT_EQ(texto_de_numero(5) + texto_de_numero(0) + texto_de_numero(-12), " 5 0-12");
    EXPECT_EQ(maiusculas("Alho Poró, ção ÷ œuvre ÿ ß 😀"), "ALHO PORÓ, ÇÃO ÷ ŒUVRE Ÿ ß 😀");
    EXPECT_EQ(maiusculas("a\xFFz"), "A\xFFZ");
}

} // namespace verdalia
