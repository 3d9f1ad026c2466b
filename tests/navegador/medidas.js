// Quanto o jogo pesa e demora num Chromium: medidas.js PASTA. Só mostra; numa máquina ocupada os tempos não valem.
'use strict';

const fs = require('node:fs');
const path = require('node:path');
const zlib = require('node:zlib');
const { Jogo, abreNavegador, dorme, serve } = require('./apoio.js');

const raiz = process.argv[2];
const comprimido = (arquivo) => zlib.gzipSync(fs.readFileSync(path.join(raiz, arquivo)), { level: 9 }).length;
const em_mb = (bytes) => (bytes / 1e6).toFixed(2) + ' MB';

async function main() {
  const servidor = await serve(raiz);
  const navegador = await abreNavegador('chrome');
  await (await navegador.newPage()).goto('about:blank');
  await dorme(6000); // o navegador acaba de abrir-se: o que custa não é do jogo
  const jogo = await Jogo.abre(navegador, servidor.endereco);
  const { pagina } = jogo;
  console.log('primeiro quadro:', Math.round(await pagina.evaluate(() =>
    performance.getEntriesByName('primeiro quadro')[0].startTime)), 'ms');

  // Cada pintura deixa a sua hora.
  await pagina.evaluate(() => {
    window.pinturas = [];
    const { putImageData } = CanvasRenderingContext2D.prototype;
    CanvasRenderingContext2D.prototype.putImageData = function (...quais) {
      putImageData.apply(this, quais);
      window.pinturas.push(performance.now());
    };
  });
  const [x, y] = await jogo.onde(416, 380);
  await pagina.mouse.move(x, y);
  await dorme(1500);
  const clicou = await pagina.evaluate(() => performance.now());
  await pagina.mouse.down();
  await pagina.mouse.up();
  await jogo.ate(() => !midias.falta('programa/inintro1.jpg') && volta !== null);
  console.log('do "Ok" ao centro:', Math.round(await pagina.evaluate((clicou) =>
    pinturas.filter((hora) => hora > clicou + 30)[0] - clicou, clicou)), 'ms');
  const vindos = await pagina.evaluate(() => [...new Set(performance.getEntriesByType('resource')
    .map((r) => new URL(r.name).pathname.slice(1)))]);
  console.log('até ao centro vêm:', em_mb(['index.html', ...vindos].map(comprimido).reduce((a, b) => a + b)), 'comprimidos');
  const todos = fs.readdirSync(raiz, { recursive: true }).filter((nome) => fs.statSync(path.join(raiz, nome)).isFile());
  console.log('o jogo inteiro:', em_mb(todos.map(comprimido).reduce((a, b) => a + b)), 'comprimidos');

  await jogo.parado();
  await jogo.ate(() => document.getElementById('rede').textContent.startsWith('Pronto'));
  const cdp = await pagina.createCDPSession();
  await cdp.send('Performance.enable', { timeDomain: 'threadTicks' });
  const ocupado = async () => (await cdp.send('Performance.getMetrics')).metrics.find((m) => m.name === 'TaskDuration').value;
  const em_repouso = async (onde) => {
    const antes = await ocupado();
    await dorme(10000);
    console.log(`em repouso, ${onde}:`, ((await ocupado() - antes) * 10).toFixed(1), '% de um núcleo');
  };
  await em_repouso('no centro');

  await jogo.clica(124, 270); // a horta
  await dorme(1500);
  await jogo.parado();
  await em_repouso('na horta');
  await pagina.mouse.move(...await jogo.onde(255, 58));
  await pagina.mouse.down();
  await pagina.evaluate(() => pinturas.length = 0);
  const comeco = Date.now();
  for (let i = 0; Date.now() - comeco < 3000; ++i)
    await pagina.mouse.move(...await jogo.onde(400 + 180 * Math.sin(i / 10), 370 + 180 * Math.cos(i / 10)));
  const quadros = await pagina.evaluate(() => pinturas.length);
  console.log('num arraste:', (quadros / (Date.now() - comeco) * 1000).toFixed(1), 'quadros por segundo');
  await pagina.mouse.up();
  await navegador.close();
}

main().then(() => process.exit(0), (erro) => {
  console.error(erro);
  process.exit(1);
});
