// O lado da página de platform/base/pagina.h. O que espera suspende o programa (Asyncify) até a promessa se cumprir.
// `Module.pagina` é de pagina/*.js.
mergeInto(LibraryManager.library, {
  pagina_espera: function (ms) {
    return Asyncify.handleSleep((volta) => Module.pagina.espera(ms, volta));
  },
  pagina_acorda: function () {
    Module.pagina.acorda();
  },
  pagina_traz: function (caminho) {
    const nome = UTF8ToString(caminho);
    // No recomeço (Rewinding) é ao Asyncify que cabe responder, ainda que o arquivo já tenha vindo.
    if (Asyncify.state === Asyncify.State.Normal && !Module.pagina.falta(nome)) return;
    return Asyncify.handleSleep((volta) => Module.pagina.depois(Module.pagina.traz(nome), volta));
  },
  pagina_trava: function () {
    return Asyncify.handleSleep((volta) => Module.pagina.depois(Module.pagina.trava(), volta));
  },
  pagina_pinta: function (pontos, x, y, largura, altura) {
    const bytes = new Uint8ClampedArray(HEAPU8.buffer, pontos, largura * altura * 4);
    Module.pagina.pinta(new ImageData(bytes, largura), x, y);
  },
  pagina_baixa: function (caminho) {
    Module.pagina.baixa(UTF8ToString(caminho));
  },
  pagina_tela_cheia: function () {
    Module.pagina.telaCheia();
  },

  // O disco do jogador é o IndexedDB: quem espera pelo disco espera que tudo o que mudou esteja lá. O SQLite não espera
  // (SQLITE_NO_SYNC); por ele espera, depois de cada gravação, quem o chamou.
  fd_sync: function (fd) {
    return Asyncify.handleSleep((volta) => Module.pagina.depois(Module.pagina.guarda(), volta));
  },
});
