// O serviço que faz o jogo abrir sem rede. A página e o programa guardam-se juntos, por versão; as mídias, cujo endereço
// traz a soma do conteúdo, uma a uma, e só as novas se baixam.
'use strict';

const pagina = 'verdalia-VERSAO';
const midias = 'verdalia-midias';
const da_pagina = ['./', PAGINA];

self.addEventListener('install', (evento) => {
  evento.waitUntil(caches.open(pagina).then((guardado) => guardado.addAll(da_pagina)));
});

self.addEventListener('activate', (evento) => {
  evento.waitUntil(Promise.all([
    self.clients.claim(),
    caches.keys().then((nomes) => Promise.all(
      nomes.filter((nome) => nome.startsWith('verdalia-') && nome !== pagina && nome !== midias)
        .map((nome) => caches.delete(nome)))),
  ]));
});

async function responde(pedido) {
  const achado = await caches.match(pedido, { cacheName: pagina }) || await caches.match(pedido, { cacheName: midias });
  if (achado) return achado;
  const resposta = await fetch(pedido);
  if (resposta.status === 200 && new URL(pedido.url).pathname.includes('/midias/'))
    (await caches.open(midias)).put(pedido, resposta.clone());
  return resposta;
}

self.addEventListener('fetch', (evento) => {
  const { method, url } = evento.request;
  if (method === 'GET' && new URL(url).origin === self.location.origin) evento.respondWith(responde(evento.request));
});

// A página pede que o resto das mídias venha, devagar; o que já não existe sai.
async function guardaTudo(enderecos) {
  const guardado = await caches.open(midias);
  const atuais = new Set(enderecos.map((endereco) => new URL(endereco, self.registration.scope).href));
  for (const pedido of await guardado.keys()) {
    if (atuais.has(pedido.url)) atuais.delete(pedido.url);
    else await guardado.delete(pedido);
  }
  const faltam = [...atuais];
  const um = async () => {
    while (faltam.length > 0) await guardado.add(faltam.shift());
  };
  await Promise.all([um(), um()]);
}

self.addEventListener('message', (evento) => {
  const fim = guardaTudo(evento.data)
    .then(() => true, () => false)
    .then((tudo) => evento.source.postMessage(tudo));
  evento.waitUntil(fim);
});
