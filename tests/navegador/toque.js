// A mesma horta com o dedo, num telefone deitado e num tablete: um toque é um clique, um toque demorado tira da cesta, e
// arrastar planta. Uso: toque.js chrome|firefox PASTA
'use strict';

const { Jogo, abreNavegador, dorme, serve } = require('./apoio.js');

const [, , qual, raiz] = process.argv;
const telas = { telefone: { largura: 800, altura: 360, densidade: 3 }, tablete: { largura: 1024, altura: 768, densidade: 2 } };

async function vai(jogo, x, y) {
  await jogo.toca(x, y);
  await dorme(1500);
  await jogo.parado();
}

async function main() {
  const servidor = await serve(raiz);
  for (const [nome, tela] of Object.entries(telas)) {
    const navegador = await abreNavegador(qual);
    const jogo = await Jogo.abre(navegador, servidor.endereco, { ...tela, toque: true });
    await vai(jogo, 416, 380); // "Ok"
    await vai(jogo, 124, 180); // a feira
    await jogo.toca(151, 136); // nabo
    await jogo.toca(586, 384); // duas cenouras, e uma a menos
    await jogo.toca(586, 384);
    await jogo.toca(586, 384, 900);
    await vai(jogo, 720, 490); // para a horta
    await jogo.arrastaComODedo(255, 58, 220, 185); // cenoura em A 1
    await jogo.arrastaComODedo(175, 104, 598, 563); // nabo em J 10
    await jogo.toca(396, 10); // num canto do quadro "Parabéns" nada acontece
    await jogo.tecla('Enter');
    await jogo.retrata(`${raiz}/../navegador-${qual}-${nome}.png`);
    await jogo.pagina.evaluate(() => Module._verdalia_guarda()); // como quando a página se esconde
    await jogo.confere('select indice, cod_cult, idade from st order by indice', '0|9|0\n99|11|0');
    await jogo.confere("select group_concat(indice || ':' || seq, ' ') from (select * from seq where seq > 0 order by indice)", '9:1 11:1');
    const pontos = await jogo.pagina.evaluate(() => {
      const c = document.getElementById('canvas');
      return Math.round(c.width / c.getBoundingClientRect().width / devicePixelRatio * 100);
    });
    if (pontos !== 100) await jogo.falha(`o canvas tem ${pontos}% dos pontos da tela`);
    if (jogo.queixas.length > 0) await jogo.falha('houve queixas');
    await navegador.close();
    console.log(`toque no ${qual}, ${nome}: certo`);
  }
}

main().then(() => process.exit(0), (erro) => {
  console.error(erro);
  process.exit(1);
});
