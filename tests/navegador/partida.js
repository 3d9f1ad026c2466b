// Uma partida inteira no navegador: pedir, semear, plantar com o mouse, imprimir, sair gravando, voltar e achar tudo como
// estava; a segunda aba que se recusa; as cópias da horta. Uso: partida.js chrome|firefox PASTA
'use strict';

const { execFileSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const { Jogo, abreNavegador, dorme, pasta, serve } = require('./apoio.js');

const [, , qual, raiz] = process.argv;
const canteiros = 'select indice, cod_cult, idade from st order by indice';
const leiras = 'select indice, cod_cult, idade from sem order by indice';
const pedido = "select group_concat(indice || ':' || seq, ' ') from (select * from seq where seq > 0 order by indice)";

async function vai(jogo, x, y) {
  await jogo.clica(x, y);
  await dorme(1500); // a animação do caminho
  await jogo.parado();
}

// O que se baixa aparece na pasta.
async function baixado(nome) {
  const procura = () => fs.readdirSync(pasta).find((arquivo) => nome.test(arquivo));
  for (const limite = Date.now() + 15000; Date.now() < limite; await dorme(100))
    if (procura()) return path.join(pasta, procura());
  throw new Error(`não se baixou ${nome}; há ${fs.readdirSync(pasta)}`);
}

async function main() {
  const servidor = await serve(raiz);
  const navegador = await abreNavegador(qual);
  const jogo = await Jogo.abre(navegador, servidor.endereco);
  await vai(jogo, 416, 380); // "Ok"
  await jogo.confere('select count(*) from seq', '21');

  const segunda = await Jogo.abre(navegador, servidor.endereco);
  await segunda.parado();
  await segunda.tecla('Enter'); // "O jogo já está aberto em outra janela."
  await segunda.ate(() => document.getElementById('frase').textContent === 'O jogo está fechado.');
  await segunda.pagina.close();
  await jogo.pagina.bringToFront();

  await vai(jogo, 124, 180); // a feira
  await jogo.clica(151, 136); // nabo
  await jogo.clica(586, 384); // cenoura, duas vezes, e uma a menos
  await jogo.clica(586, 384);
  await jogo.clica(586, 384, 'right');
  await jogo.clica(79, 384); // um alho-poró, que o mesmo botão tira
  await jogo.clica(79, 384, 'right');
  await vai(jogo, 720, 490); // para a horta
  await jogo.arrasta(255, 58, 220, 185); // cenoura em A 1
  await jogo.arrasta(175, 104, 640, 575); // nabo no fundo da tela: nada
  await jogo.arrasta(175, 104, 598, 563); // nabo em J 10
  await jogo.tecla('Enter'); // "Parabéns"
  await vai(jogo, 60, 139); // a sementeira
  await jogo.arrasta(225, 82, 186, 274); // alface em A 1
  await vai(jogo, 60, 230); // a agenda
  await vai(jogo, 70, 289); // a impressora
  await jogo.tecla('s');
  const relatorio = await baixado(/^semana.*\.pdf$/);
  await dorme(500);
  const papel = execFileSync('pdftotext', ['-layout', relatorio, '-'], { encoding: 'utf8' });
  if (!/Verdalia|Semana|semana/.test(papel)) throw new Error(`relatório sem texto: ${papel}`);
  await jogo.pagina.bringToFront(); // o Firefox mostra-o numa aba nova
  await jogo.tecla('Enter'); // onde ele ficou
  await vai(jogo, 70, 80); // o hortelão
  await vai(jogo, 124, 74); // a porta
  await jogo.tecla('s');
  await jogo.parado();
  await jogo.tecla('s');
  await jogo.parado();
  await jogo.tecla('Enter'); // "Pendências"
  await jogo.ate(() => document.getElementById('frase').textContent.startsWith('Até logo'));

  const ha = [await jogo.pergunta(canteiros), await jogo.pergunta(leiras), await jogo.pergunta(pedido)];
  const devia = ['0|9|0\n99|11|0', '0|1|0', '9:1 11:1'];
  if (String(ha) !== String(devia)) await jogo.falha(`guardado: ${ha}\n  esperado: ${devia}`);

  await jogo.carrega();
  await vai(jogo, 416, 380);
  await jogo.pagina.click('#guardar');
  const copia = await baixado(/\.horta$/);
  await dorme(500);
  const na_copia = execFileSync('sqlite3', [copia, canteiros], { encoding: 'utf8' }).trim();
  if (na_copia !== devia[0]) throw new Error(`na cópia: ${na_copia}`);

  // A horta que veio de outro lugar; antes dela, um arquivo que não é horta.
  execFileSync('sqlite3', [copia, 'update st set cod_cult = 12 where indice = 99']);
  const texto = path.join(pasta, 'texto.horta');
  fs.writeFileSync(texto, 'não é uma horta');
  const escolhe = await jogo.pagina.$('#escolhe');
  await escolhe.uploadFile(texto);
  await dorme(1000);
  await jogo.confere(canteiros, devia[0]);
  await escolhe.uploadFile(copia);
  await dorme(1500);
  await jogo.ate(() => document.getElementById('recado').hidden);
  await vai(jogo, 416, 380);
  await jogo.confere(canteiros, '0|9|0\n99|12|0');
  if (jogo.queixas.length > 0) await jogo.falha('houve queixas');
  await navegador.close();
  servidor.para();
  console.log(`partida no ${qual}: certo`);
}

main().then(() => process.exit(0), (erro) => {
  console.error(erro);
  process.exit(1);
});
