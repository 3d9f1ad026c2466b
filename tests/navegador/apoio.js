// O jogo num navegador de verdade, jogado de fora: cliques e toques em pixels lógicos (792 × 592), e o que ficou guardado
// lido do IndexedDB pelo sqlite3.
'use strict';

const { execFileSync, spawn } = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');
const puppeteer = require('puppeteer-core');

const navegadores = {
  chrome: { executablePath: '/usr/bin/chromium', args: ['--no-sandbox', '--autoplay-policy=no-user-gesture-required'] },
  firefox: { executablePath: '/usr/bin/firefox-esr', args: [] },
};
const dorme = (ms) => new Promise((pronto) => setTimeout(pronto, ms));
const pasta = fs.mkdtempSync(path.join(os.tmpdir(), 'verdalia-'));
process.on('exit', () => {
  try {
    fs.rmSync(pasta, { recursive: true, force: true });
  } catch (erro) {
    // o navegador ainda se fecha; é uma pasta temporária
  }
});

// Serve a pasta do jogo; devolve o endereço e como parar.
function serve(raiz) {
  const servidor = spawn('python3', ['-u', '-m', 'http.server', '0', '-b', '127.0.0.1', '-d', raiz]);
  servidor.stderr.resume();
  process.on('exit', () => servidor.kill());
  return new Promise((pronto) => servidor.stdout.on('data', (linha) => {
    const porta = /port (\d+)/.exec(linha);
    if (porta) pronto({ endereco: `http://localhost:${porta[1]}/`, para: () => servidor.kill() });
  }));
}

// O que se baixa fica em `pasta`.
async function abreNavegador(qual, perfil = fs.mkdtempSync(path.join(pasta, 'perfil-'))) {
  const navegador = await puppeteer.launch({
    browser: qual, headless: true, userDataDir: perfil, ...navegadores[qual],
    extraPrefsFirefox: { 'browser.download.folderList': 2, 'browser.download.dir': pasta, 'dom.w3c_touch_events.enabled': 1 },
  });
  if (qual === 'chrome') {
    const cdp = await navegador.target().createCDPSession();
    await cdp.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: pasta });
  }
  return navegador;
}

class Jogo {
  static async abre(navegador, endereco, { largura = 1024, altura = 768, toque = false, densidade = 1 } = {}) {
    const jogo = new Jogo();
    jogo.pagina = await navegador.newPage();
    jogo.queixas = [];
    jogo.pagina.on('dialog', (d) => d.accept().catch(() => {}));
    jogo.pagina.on('pageerror', (e) => jogo.queixas.push(e.stack || e.message));
    jogo.pagina.on('console', (m) => m.type() === 'error' && jogo.queixas.push(m.text()));
    const firefox = (await navegador.version()).toLowerCase().includes('firefox');
    await jogo.pagina.setViewport({ width: largura, height: altura, ...(firefox ? {} : { deviceScaleFactor: densidade, hasTouch: toque }) });
    jogo.endereco = endereco;
    await jogo.carrega();
    return jogo;
  }

  async carrega() {
    await this.pagina.goto(this.endereco);
    await this.ate(() => document.getElementById('recado').hidden);
    await this.parado();
  }

  // Espera que a condição, avaliada na página, valha.
  async ate(condicao, ...valores) {
    const limite = Date.now() + 60000;
    while (!(await this.pagina.evaluate(condicao, ...valores))) {
      if (Date.now() > limite) await this.falha(`nunca se deu: ${condicao}`);
      await dorme(50);
    }
  }

  async falha(frase) {
    const retrato = path.join(os.tmpdir(), 'verdalia-falha.png');
    await this.pagina.screenshot({ path: retrato }).catch(() => {});
    throw new Error(`${frase}\n  retrato: ${retrato}\n  queixas: ${this.queixas.join('\n')}`);
  }

  // Espera que o programa não tenha o que fazer e a tela fique parada; as que piscam nunca ficam, e então basta um tempo.
  async parado(ms = 12000) {
    const retrato = () => this.pagina.evaluate(() => {
      if (volta === null) return NaN; // o programa trabalha, ou espera por um arquivo
      const c = document.getElementById('canvas');
      const pontos = new Uint32Array(c.getContext('2d').getImageData(0, 0, c.width, c.height).data.buffer);
      let soma = 0;
      for (let i = 0; i < pontos.length; i += 7) soma = (soma * 31 + pontos[i]) | 0;
      return soma;
    });
    let antes = await retrato(), iguais = 0;
    for (const limite = Date.now() + ms; Date.now() < limite && iguais < 4;) {
      await dorme(120);
      const agora = await retrato();
      iguais = agora === antes ? iguais + 1 : 0;
      antes = agora;
    }
  }

  // Onde fica na página um ponto do jogo.
  async onde(x, y) {
    return this.pagina.evaluate((x, y) => {
      const r = document.getElementById('canvas').getBoundingClientRect();
      const escala = Math.min(r.width / 792, r.height / 592);
      return [r.x + (r.width - 792 * escala) / 2 + x * escala, r.y + (r.height - 592 * escala) / 2 + y * escala];
    }, x, y);
  }

  async clica(x, y, botao = 'left') {
    const [px, py] = await this.onde(x, y);
    await this.pagina.mouse.move(px, py);
    await this.pagina.mouse.down({ button: botao });
    await this.pagina.mouse.up({ button: botao });
    await dorme(450); // mais que um clique duplo
  }

  async arrasta(x0, y0, x1, y1, passos = 8) {
    await this.pagina.mouse.move(...await this.onde(x0, y0));
    await this.pagina.mouse.down();
    for (let i = 1; i <= passos; ++i)
      await this.pagina.mouse.move(...await this.onde(x0 + (x1 - x0) * i / passos, y0 + (y1 - y0) * i / passos));
    await this.pagina.mouse.up();
    await dorme(500);
  }

  async toca(x, y, demora = 0) {
    await this.pagina.touchscreen.touchStart(...await this.onde(x, y));
    await dorme(demora);
    await this.pagina.touchscreen.touchEnd();
    await dorme(450);
  }

  async arrastaComODedo(x0, y0, x1, y1, passos = 8) {
    await this.pagina.touchscreen.touchStart(...await this.onde(x0, y0));
    for (let i = 1; i <= passos; ++i)
      await this.pagina.touchscreen.touchMove(...await this.onde(x0 + (x1 - x0) * i / passos, y0 + (y1 - y0) * i / passos));
    await this.pagina.touchscreen.touchEnd();
    await dorme(500);
  }

  async tecla(nome) {
    await this.pagina.keyboard.press(nome);
    await dorme(400);
  }

  // Um arquivo do jogador, como está no IndexedDB; nulo quando não há.
  async guardado(nome) {
    const bytes = await this.pagina.evaluate((nome) => new Promise((pronto) => {
      const pedido = indexedDB.open('verdalia', 1);
      pedido.onsuccess = () => {
        const busca = pedido.result.transaction('arquivos').objectStore('arquivos')
          .get('/home/web_user/.local/share/verdalia/' + nome);
        busca.onsuccess = () => {
          pedido.result.close();
          pronto(busca.result ? Array.from(busca.result) : null);
        };
      };
    }), nome);
    return bytes && Buffer.from(bytes);
  }

  // O que o banco guardado responde, com o diário que estiver ao lado dele.
  async pergunta(sql, nome = 'hortas00.mdb') {
    const arquivo = path.join(pasta, 'lido.mdb');
    for (const sufixo of ['', '-journal']) {
      const bytes = await this.guardado(nome + sufixo);
      if (bytes) fs.writeFileSync(arquivo + sufixo, bytes);
      else fs.rmSync(arquivo + sufixo, { force: true });
    }
    try {
      return execFileSync('sqlite3', [arquivo, sql], { encoding: 'utf8', stdio: 'pipe' }).trim();
    } catch (erro) {
      return erro.stderr;
    }
  }

  async confere(sql, esperado, nome) {
    let achado;
    for (const limite = Date.now() + 5000; Date.now() < limite; await dorme(100)) {
      achado = await this.pergunta(sql, nome);
      if (achado === esperado) return;
    }
    await this.falha(`${sql}\n  esperado: ${esperado}\n  achado:   ${achado}`);
  }

  async retrata(nome) {
    await this.pagina.screenshot({ path: nome });
  }
}

module.exports = { Jogo, abreNavegador, dorme, pasta, serve };
