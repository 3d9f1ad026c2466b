// O que é do jogador fica no IndexedDB deste navegador: uma linha por arquivo da pasta dele. Cada ida ao disco grava, de
// uma vez só, tudo o que mudou; a página pode fechar-se a qualquer momento, e fica o de antes ou o de depois.
const guarda = {
  pasta: '/home/web_user/.local/share/verdalia',
  banco: null,
  gravados: new Map(), // caminho → bytes, como estão no IndexedDB

  async le() {
    const pedido = indexedDB.open('verdalia', 1);
    pedido.onupgradeneeded = () => pedido.result.createObjectStore('arquivos');
    this.banco = await this.promessa(pedido);
    const loja = this.banco.transaction('arquivos').objectStore('arquivos');
    const [nomes, bytes] = await Promise.all([this.promessa(loja.getAllKeys()), this.promessa(loja.getAll())]);
    nomes.forEach((nome, i) => this.gravados.set(nome, bytes[i]));
  },

  poeNaArvore(FS) {
    FS.mkdirTree(this.pasta);
    for (const [nome, bytes] of this.gravados) {
      FS.mkdirTree(nome.slice(0, nome.lastIndexOf('/')));
      FS.writeFile(nome, bytes);
    }
  },

  promessa: (pedido) => new Promise((serve, falha) => {
    pedido.onsuccess = () => serve(pedido.result);
    pedido.onerror = () => falha(pedido.error);
  }),

  arquivos(FS, pasta, le = (caminho) => FS.readFile(caminho), achados = new Map()) {
    for (const nome of FS.readdir(pasta)) {
      if (nome === '.' || nome === '..') continue;
      const caminho = `${pasta}/${nome}`;
      if (FS.isDir(FS.stat(caminho).mode)) this.arquivos(FS, caminho, le, achados);
      else achados.set(caminho, le(caminho));
    }
    return achados;
  },

  // Um arquivo que só mudou de nome, ou saiu, não passa por quem espera pelo disco.
  async gravaNomes(FS) {
    const nomes = [...this.arquivos(FS, this.pasta, () => true).keys()];
    if (nomes.length !== this.gravados.size || nomes.some((nome) => !this.gravados.has(nome))) await this.grava(FS);
  },

  // Devolve 0, ou o número do erro como o programa os conhece.
  async grava(FS) {
    const agora = this.arquivos(FS, this.pasta);
    const igual = (a, b) => b !== undefined && a.length === b.length && a.every((byte, i) => byte === b[i]);
    const mudou = [...agora].filter(([nome, bytes]) => !igual(bytes, this.gravados.get(nome)));
    const saiu = [...this.gravados.keys()].filter((nome) => !agora.has(nome));
    if (mudou.length + saiu.length === 0) return 0;
    try {
      const passo = this.banco.transaction('arquivos', 'readwrite', { durability: 'strict' });
      const loja = passo.objectStore('arquivos');
      for (const [nome, bytes] of mudou) loja.put(bytes, nome);
      for (const nome of saiu) loja.delete(nome);
      await new Promise((serve, falha) => {
        passo.oncomplete = serve;
        passo.onabort = () => falha(passo.error);
      });
    } catch (erro) {
      console.error('verdalia: a horta não foi gravada:', erro);
      return erro && erro.name === 'QuotaExceededError' ? 51 : 29; // ENOSPC, EIO
    }
    this.gravados = agora;
    return 0;
  },
};
