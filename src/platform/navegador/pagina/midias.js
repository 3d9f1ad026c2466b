// As mídias do programa. A lista delas vem primeiro, e cada uma aparece como um arquivo vazio na pasta /programa; os
// bytes vêm da rede quando o jogo pede o arquivo, e com ele os outros quadros da mesma série.
const midias = {
  lista: new Map(),    // "anima/cof00.bmp" → endereço
  enderecos: [],
  chegando: new Map(), // nome → promessa dos bytes
  series: new Map(),   // "anima/cof" → nomes

  // O que se vê primeiro vem enquanto o programa se prepara; o centro do jogo, enquanto se lê o primeiro diálogo.
  comeco: /^(fontes\/|recursos\/(hortelao|mao|feira_(cen|alf|tom|bro|bgl|rab|pim))\.)/,
  centro: /^(back_in|inintro1|anima\/(port00|cesta9|age10|int00|nhoca\d|enx00c|mudas007))/,

  serie: (nome) => nome.replace(/\d*\w?\.\w+$/, ''),

  async le() {
    const { arquivos } = await (await fetch('arquivos.json')).json();
    for (const [nome, endereco] of arquivos) {
      this.lista.set(nome, 'midias/' + endereco);
      this.enderecos.push('midias/' + endereco);
      const serie = this.serie(nome);
      if (!this.series.has(serie)) this.series.set(serie, []);
      this.series.get(serie).push(nome);
    }
    this.adianta(this.comeco);
  },

  adianta(quais) {
    for (const nome of this.lista.keys()) if (quais.test(nome)) this.pede(nome).catch(() => {});
  },

  poeNaArvore(FS) {
    const pastas = new Map(); // nome → nó: procurá-la outra vez para cada arquivo demora
    for (const nome of this.lista.keys()) {
      const corte = nome.lastIndexOf('/') + 1;
      const pasta = '/programa/' + nome.slice(0, corte);
      if (!pastas.has(pasta)) {
        FS.mkdirTree(pasta);
        pastas.set(pasta, FS.lookupPath(pasta).node);
      }
      const no = pastas.get(pasta);
      no.node_ops.mknod(no, nome.slice(corte), 0o100644, 0);
    }
  },

  pede(nome) {
    if (!this.chegando.has(nome)) {
      const chega = fetch(this.lista.get(nome)).then((resposta) => {
        if (!resposta.ok) throw new Error(`${resposta.status} ${nome}`);
        return resposta.arrayBuffer();
      });
      chega.catch(() => this.chegando.delete(nome)); // a próxima vez tenta de novo
      this.chegando.set(nome, chega);
    }
    return this.chegando.get(nome);
  },

  nome: (caminho) => caminho.replace(/^\/?programa\//, ''),

  falta(caminho) {
    return this.lista.has(this.nome(caminho));
  },

  // Os bytes do arquivo passam a estar na pasta. Sem rede fica vazio, e o jogo diz o que falta.
  async traz(caminho, FS) {
    const nome = this.nome(caminho);
    const bytes = await this.pede(nome);
    FS.writeFile('/programa/' + nome, new Uint8Array(bytes));
    this.lista.delete(nome);
    this.chegando.delete(nome);
    for (const outro of this.series.get(this.serie(nome))) if (this.lista.has(outro)) this.pede(outro).catch(() => {});
  },
};
