// O navegador morto no meio de uma gravação: o que fica é a horta de antes ou a de depois, inteira, e o jogo volta a
// abrir. E sem rede, depois da primeira visita, abre também. Uso: morte.js chrome|firefox PASTA
'use strict';

const { once } = require('node:events');
const fs = require('node:fs');
const path = require('node:path');
const { Jogo, abreNavegador, dorme, pasta, serve } = require('./apoio.js');

const [, , qual, raiz] = process.argv;
const canteiros = "select group_concat(indice || ':' || cod_cult, ' ') from (select * from st order by indice)";

async function centro(jogo) {
  await jogo.clica(416, 380); // "Ok"
  await jogo.parado();
}

async function main() {
  const servidor = await serve(raiz);
  const perfil = fs.mkdtempSync(path.join(pasta, 'perfil-'));
  let navegador = await abreNavegador(qual, perfil);
  let jogo = await Jogo.abre(navegador, servidor.endereco);
  await centro(jogo);
  await jogo.clica(124, 270); // a horta
  await dorme(1500);
  await jogo.parado();
  await jogo.arrasta(255, 58, 220, 185); // cenoura em A 1
  await jogo.pagina.evaluate(() => Module._verdalia_guarda());
  await jogo.confere(canteiros, '0:9');

  const vistos = new Set();
  for (const demora of [0, 3, 6, 10, 15, 25]) {
    const antes = await jogo.pergunta(canteiros);
    if (antes !== '0:9') await jogo.falha(`antes de morrer: ${antes}`);
    await jogo.arrasta(175, 104, 598, 563); // nabo em J 10
    jogo.pagina.evaluate(() => Module._verdalia_guarda()).catch(() => {});
    await dorme(demora);
    const morreu = once(navegador.process(), 'exit');
    navegador.process().kill('SIGKILL');
    await morreu;
    await dorme(2000); // os processos que ele tinha ainda se vão

    navegador = await abreNavegador(qual, perfil);
    jogo = await Jogo.abre(navegador, servidor.endereco);
    await centro(jogo);
    const depois = await jogo.pergunta(canteiros);
    vistos.add(depois);
    if (depois !== '0:9' && depois !== '0:9 99:11') await jogo.falha(`depois de morrer: ${depois}`);
    const inteiro = await jogo.pergunta('pragma integrity_check');
    if (inteiro !== 'ok') await jogo.falha(inteiro);
    await jogo.clica(124, 270); // a horta, onde o nabo sai se tinha ficado
    await dorme(1500);
    await jogo.parado();
    if (depois !== '0:9') {
      await jogo.arrasta(598, 563, 660, 300);
      await jogo.parado();
      await jogo.tecla('s');
      await jogo.pagina.evaluate(() => Module._verdalia_guarda());
      await jogo.confere(canteiros, '0:9');
    }
  }

  await jogo.ate(() => document.getElementById('rede').textContent.startsWith('Pronto'));
  servidor.para();
  await jogo.carrega();
  await centro(jogo);
  await jogo.clica(124, 180); // a feira, onde ainda não se tinha ido
  await dorme(1500);
  await jogo.parado();
  if (jogo.queixas.length > 0) await jogo.falha('houve queixas');
  await jogo.retrata(`${raiz}/../navegador-${qual}-sem-rede.png`);
  await navegador.close();
  console.log(`morte e falta de rede no ${qual}: certo (${[...vistos].join(' | ')})`);
}

main().then(() => process.exit(0), (erro) => {
  console.error(erro);
  process.exit(1);
});
