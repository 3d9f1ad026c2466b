// A página do navegador em que o jogo corre: o outro lado está em platform/navegador/biblioteca.js. Só existe na
// construção para o navegador. As marcadas com "espera" devolvem a vez à página e voltam quando ela responde.
#pragma once

extern "C" {

// Espera até `pagina_acorda` ou por `ms` milissegundos (negativo: sem limite).
void pagina_espera(int ms);
// Chegou um evento: quem está em `pagina_espera` volta.
void pagina_acorda(void);
// Espera que o arquivo instalado desse caminho, se ainda não veio, venha da rede.
void pagina_traz(const char* caminho);
// Espera a resposta: 1 quando esta página tem o jogo para si; 0 quando outra já o tem.
int pagina_trava(void);
// Põe no canvas um retângulo de pontos RGBA, linha a linha, com o canto em (x, y).
void pagina_pinta(const void* pontos, int x, int y, int largura, int altura);
// Oferece o arquivo ao jogador, como um que se baixa.
void pagina_baixa(const char* caminho);
void pagina_tela_cheia(void);
}
