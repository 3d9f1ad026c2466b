#include "platform/base/texto.h"

#include <gtest/gtest.h>

namespace verdalia {

TEST(Texto, TodoByteVaiEVolta) {
    std::string todos;
    for (int i = 0; i < 256; ++i) todos += static_cast<char>(i);
    EXPECT_EQ(cp1252_de_utf8(utf8_de_1252(todos)), todos);
    EXPECT_EQ(utf8_de_1252("Chic\xF3ria \x80 \x96 \x9C"), "Chicória € – œ");
}

TEST(Texto, OQueNaoCabeViraInterrogacao) {
    EXPECT_EQ(cp1252_de_utf8("a→b😀c"), "a?b?c");
    EXPECT_EQ(cp1252_de_utf8("\x80"), "?");      // U+0080 não está na tabela, e aqui é só uma continuação solta
    EXPECT_EQ(cp1252_de_utf8("\xC2\x80"), "?");  // o mesmo código, bem escrito
    EXPECT_EQ(cp1252_de_utf8("\xC3"), "?");      // cortado no meio
    EXPECT_EQ(cp1252_de_utf8("\xC0\xAF"), "??"); // forma longa demais
    EXPECT_EQ(cp1252_de_utf8("\xED\xA0\x80"), "???"); // metade de um par
    EXPECT_EQ(cp1252_de_utf8("\xF4\x90\x80\x80x"), "????x");
}

TEST(Texto, NumerosLevamUmBranco) {
    EXPECT_EQ(texto_de_numero(5), " 5");
    EXPECT_EQ(texto_de_numero(0), " 0");
    EXPECT_EQ(texto_de_numero(-12), "-12");
}

TEST(Texto, MaiusculasComAcento) {
    EXPECT_EQ(maiusculas("Alho Poró, ção ÷ œuvre ÿ ß 😀"), "ALHO PORÓ, ÇÃO ÷ ŒUVRE Ÿ ß 😀");
    EXPECT_EQ(maiusculas("a\xFFz"), "A\xFFZ");
}

} // namespace verdalia
