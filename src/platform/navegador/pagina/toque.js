// O dedo como mouse: um toque é um clique, um toque demorado é o botão direito, e arrastar o dedo arrasta. O botão só
// se aperta quando se sabe qual dos três é.
function atendeToques(canvas) {
  const demora = 550, folga = 10; // milissegundos, pixels
  let dedo = null, inicio = null, relogio = 0, apertado = false, resolvido = false;

  const manda = (tipo, onde, botao = 0) => canvas.dispatchEvent(new MouseEvent(tipo, {
    bubbles: true, cancelable: true, view: window, clientX: onde.clientX, clientY: onde.clientY,
    button: botao, buttons: tipo === 'mousedown' ? (botao === 2 ? 2 : 1) : 0,
  }));
  const clica = (onde, botao) => {
    for (const tipo of ['mousemove', 'mousedown', 'mouseup']) manda(tipo, onde, botao);
  };
  const acha = (toques) => [...toques].find((t) => t.identifier === dedo);
  const so_meu = (evento) => {
    evento.preventDefault();
    evento.stopImmediatePropagation();
  };
  const ouve = (tipo, atende) => window.addEventListener(tipo, (evento) => {
    if (evento.target !== canvas) return;
    so_meu(evento);
    atende(evento);
  }, { capture: true, passive: false });

  ouve('touchstart', (evento) => {
    if (dedo !== null) return; // um dedo de cada vez
    inicio = evento.changedTouches[0];
    dedo = inicio.identifier;
    apertado = resolvido = false;
    canvas.focus({ preventScroll: true });
    relogio = setTimeout(() => {
      resolvido = true;
      clica(inicio, 2);
      if (navigator.vibrate) navigator.vibrate(20);
    }, demora);
  });
  ouve('touchmove', (evento) => {
    const toque = acha(evento.changedTouches);
    if (!toque || resolvido) return;
    if (!apertado && Math.hypot(toque.clientX - inicio.clientX, toque.clientY - inicio.clientY) < folga) return;
    if (!apertado) {
      clearTimeout(relogio);
      apertado = true;
      manda('mousemove', inicio);
      manda('mousedown', inicio);
    }
    manda('mousemove', toque);
  });
  const acaba = (cancelado) => (evento) => {
    const toque = acha(evento.changedTouches);
    if (!toque) return;
    clearTimeout(relogio);
    dedo = null;
    if (apertado) manda('mouseup', toque);
    else if (!resolvido && !cancelado) clica(inicio, 0);
  };
  ouve('touchend', acaba(false));
  ouve('touchcancel', acaba(true));
}
