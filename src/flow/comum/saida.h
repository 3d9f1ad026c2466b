// A saída do jogo, a mesma da porta, da barraca e do fecho da janela.
#pragma once

namespace verdalia {

// Pergunta se sai e se salva, avisa do que ficou por fazer e termina o jogo. Volta com o jogo aberto quando o
// jogador desiste, ou quando não se pôde gravar o que ele quis salvar.
void sai_do_jogo();

// "Deseja salvar ?"; a resposta fica em `resposta_sim`.
void pergunta_gravar();

// O sistema manda acabar (fim da sessão, desligamento), ou pode fazê-lo sem outro aviso: grava sem perguntar. Uma
// previsão não se grava, só o estado verdadeiro; antes da primeira carga não há o que gravar. Falso, com uma linha em
// stderr, quando não se pôde gravar.
bool grava_ja();

} // namespace verdalia
