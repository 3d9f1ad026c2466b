// A página em que o jogo corre: prepara os arquivos, põe o programa a andar e faz o que ele pede (ver biblioteca.js).
'use strict';

const peca = (id) => document.getElementById(id);
const canvas = peca('canvas');

function recado(frase, de_novo) {
  peca('frase').textContent = frase;
  peca('de_novo').hidden = !de_novo;
  peca('recado').hidden = false;
}

function baixa(nome, bytes, tipo) {
  const ligacao = document.createElement('a');
  ligacao.href = URL.createObjectURL(new Blob([bytes], { type: tipo }));
  ligacao.download = nome;
  ligacao.click();
  setTimeout(() => URL.revokeObjectURL(ligacao.href), 60000);
}

// ---- o que o programa pede

const sem_rede = 'Sem rede: parte das figuras e das vozes ainda não veio.';

let volta = null; // quem espera por um evento
let chegou = false;
let em_jogo = false;
let alarme = 0;

function interrompeu(erro) {
  if (!erro || erro.name !== 'ExitStatus') falhou(erro); // o fim, onExit já o disse
}

// A trava é do navegador, e solta-se com a página, mesmo por acidente. Espera um pouco pela página que se recarrega.
const trava = new Promise((responde) => {
  if (!navigator.locks) return responde(1);
  navigator.locks.request('verdalia', { signal: AbortSignal.timeout(1000) }, () => {
    responde(1);
    return new Promise(() => {});
  }).catch(() => responde(0));
});

const pagina = {
  espera(ms, quando_voltar) {
    if (!em_jogo) comecou(); // a primeira espera vem depois da primeira pintura
    volta = quando_voltar;
    guarda.gravaNomes(Module.FS);
    if (!chegou) parou();
    if (chegou) this.acorda();
    else if (ms >= 0) alarme = setTimeout(() => this.acorda(), ms);
  },

  acorda() {
    chegou = volta === null;
    if (volta === null) return;
    const quem = volta;
    volta = null;
    clearTimeout(alarme);
    this.depois(Promise.resolve(), quem); // depois de terminar quem deu a notícia
  },

  // O programa segue quando a promessa se cumpre.
  depois: (promessa, quem) => promessa.then(quem).catch(interrompeu),

  pinta: (pintura, x, y) => canvas.getContext('2d', { alpha: false }).putImageData(pintura, x, y),

  falta: (caminho) => midias.falta(caminho),

  async traz(caminho) {
    try {
      await midias.traz(caminho, Module.FS);
      if (peca('rede').textContent === sem_rede) peca('rede').textContent = '';
    } catch (erro) {
      console.warn('verdalia: não veio da rede:', caminho, erro);
      peca('rede').textContent = sem_rede;
    }
  },

  guarda: () => guarda.grava(Module.FS),

  trava: () => trava,

  baixa(caminho) {
    baixa(caminho.slice(caminho.lastIndexOf('/') + 1), Module.FS.readFile(caminho), 'application/pdf');
  },

  telaCheia() {
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen().catch(() => {});
  },
};

// ---- as cópias da horta

// Cumpre-se quando o programa está parado à espera de um evento, sem nada por gravar.
let parou = () => {};
const parado = () => new Promise((pronto) => {
  if (volta !== null && !chegou) pronto();
  else parou = pronto;
});

const da_partida = guarda.pasta + '/hortas00.mdb';

async function guardaCopia() {
  if (!em_jogo) return;
  await parado();
  Module._verdalia_guarda();
  await parado();
  const dia = new Date().toLocaleDateString('sv'); // AAAA-MM-DD
  baixa(`verdalia ${dia}.horta`, Module.FS.readFile(da_partida), 'application/vnd.sqlite3');
}

async function abreCopia(arquivo) {
  const bytes = new Uint8Array(await arquivo.arrayBuffer());
  const e_horta = new TextDecoder().decode(bytes.subarray(0, 15)) === 'SQLite format 3' && bytes.length < 4 << 20;
  if (!e_horta) return alert(`"${arquivo.name}" não é uma cópia da horta. A horta deste navegador continua como estava.`);
  if (!confirm('A horta que está neste navegador será trocada pela da cópia. Para ficar também com ela, desista agora e ' +
    'guarde antes uma cópia. Trocar?')) return;
  if (em_jogo) await parado();
  em_jogo = false;
  volta = null; // o programa já não volta a gravar
  Module.FS.writeFile(da_partida, bytes);
  if (await guarda.grava(Module.FS) !== 0)
    alert('A cópia não coube neste navegador. A horta dele continua como estava.');
  location.reload();
}

function comecou() {
  em_jogo = true;
  peca('recado').hidden = true;
  performance.mark('primeiro quadro');
  midias.adianta(midias.centro);
  setTimeout(guardaParaSemRede, 4000);
}

// Depois do começo, e com vagar: a página e todas as mídias, para abrir sem rede.
async function guardaParaSemRede() {
  if (!navigator.serviceWorker) return; // sem https, só em localhost
  navigator.serviceWorker.addEventListener('message', ({ data: tudo }) => {
    if (tudo) peca('rede').textContent = 'Pronto para jogar sem rede.';
  });
  try {
    await navigator.serviceWorker.register('servico.js');
    (await navigator.serviceWorker.ready).active.postMessage(midias.enderecos);
  } catch (erro) {
    console.warn('verdalia: sem serviço:', erro);
  }
}

// ---- o programa

var Module = {
  canvas,
  pagina,
  preRun: [() => {
    Module.addRunDependency('arquivos');
    arquivos.then(() => {
      midias.poeNaArvore(Module.FS);
      guarda.poeNaArvore(Module.FS);
      Module.removeRunDependency('arquivos');
    }).catch(falhou);
  }],
  onExit: (estado) => {
    em_jogo = false;
    recado(estado === 0 ? 'Até logo! A horta continua a crescer, mesmo com o jogo fechado.' : 'O jogo está fechado.', true);
  },
  onAbort: (razao) => falhou(razao),
};
// A horta só se lê com a trava na mão: até aí outra página ainda pode gravar.
const arquivos = Promise.all([midias.le(), trava.then(() => guarda.le())]);
arquivos.catch(() => {}); // quem espera por eles é que o diz

function falhou(razao) {
  console.error('verdalia:', razao);
  em_jogo = false;
  recado('O jogo não pôde abrir. Confira a rede e o espaço livre neste aparelho, e tente outra vez.', true);
}

peca('guardar').onclick = guardaCopia;
peca('abrir').onclick = () => peca('escolhe').click();
peca('escolhe').onchange = (evento) => {
  if (evento.target.files.length > 0) abreCopia(evento.target.files[0]);
  evento.target.value = '';
};
document.addEventListener('visibilitychange', () => {
  if (document.hidden && em_jogo) Module._verdalia_guarda();
});
peca('de_novo').onclick = () => location.reload();
peca('tela_cheia').onclick = () => pagina.telaCheia();
canvas.addEventListener('contextmenu', (evento) => evento.preventDefault());
// As teclas do próprio navegador continuam a ser dele.
canvas.addEventListener('keydown', (evento) => {
  if (evento.key === 'F5' || evento.key === 'F12' || evento.ctrlKey || evento.metaKey) evento.stopImmediatePropagation();
}, { capture: true });
window.addEventListener('beforeunload', (evento) => {
  if (em_jogo) evento.preventDefault(); // sair pela porta é que pergunta se salva
});
atendeToques(canvas);
canvas.focus();

if (typeof WebAssembly !== 'object')
  recado('Para jogar Verdalia é preciso um navegador com WebAssembly; neste ele falta ou está desligado. ' +
    'Abra esta página num navegador mais novo, ou ligue o WebAssembly nas opções.');
else
  document.body.append(Object.assign(document.createElement('script'), {
    src: 'verdalia.js', onerror: () => falhou('verdalia.js não veio'),
  }));
