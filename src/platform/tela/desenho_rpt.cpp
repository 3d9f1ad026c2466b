#include "platform/tela/desenho_rpt.h"

#include "platform/base/dao.h"
#include "platform/tela/folhas.h"

#include <algorithm>
#include <map>

namespace verdalia {

namespace {

// ---- As tabelas

struct Registro {
    std::map<std::string, std::string> campos; // sem os brancos das pontas
    std::vector<std::int64_t> ordem;
};

std::string sem_brancos(const std::string& texto) {
    const auto comeco = texto.find_first_not_of(' ');
    return comeco == texto.npos ? "" : texto.substr(comeco, texto.find_last_not_of(' ') - comeco + 1);
}

// Um campo do mapa, por canteiro: de "cult" a cult1, cult2...; 0 é o campo sem número.
std::string numerado(const std::string& campo, int numero) {
    return numero == 0 ? campo : campo + std::to_string(numero);
}

// O modelo pode ser mudado por qualquer um: o que ele pede tem de existir.
void confere_campos(const ModeloDeRelatorio& m, const BlocoImpresso& b, const std::vector<std::string>& existem) {
    const auto exige = [&](const std::string& campo, int linha) {
        if (std::find(existem.begin(), existem.end(), campo) == existem.end())
            engano_no_modelo(m.arquivo, linha, "a tabela \"" + b.nome + "\" não tem o campo \"" + campo + "\"");
    };
    if (existem.empty()) engano_no_modelo(m.arquivo, b.linha, "o banco não tem a tabela \"" + b.nome + "\"");
    for (const ColunaImpressa& c : b.colunas) exige(c.campo, c.linha);
    for (const ColunaImpressa& c : b.celulas) exige(numerado(c.campo, 1), c.linha);
    for (const std::string& campo : b.ordem) exige(campo, b.linha);
    for (const std::string& campo : {b.secao, b.grupo})
        if (!campo.empty()) exige(campo, b.linha);
}

std::vector<Registro> le_tabela(const ModeloDeRelatorio& m, const BlocoImpresso& b, Database& banco) {
    const std::vector<std::string> existem = banco.campos(b.nome);
    confere_campos(m, b, existem);
    std::vector<Registro> registros;
    for (Recordset r = banco.OpenRecordset(b.nome); !r.EOF(); r.MoveNext()) {
        Registro& novo = registros.emplace_back();
        for (const std::string& campo : existem) novo.campos[campo] = sem_brancos(r.Fields(campo).texto());
        for (const std::string& campo : b.ordem) novo.ordem.push_back(r.Fields(campo).inteiro().value_or(0));
    }
    std::stable_sort(registros.begin(), registros.end(),
                     [](const Registro& a, const Registro& z) { return a.ordem < z.ordem; });
    return registros;
}

// ---- As datas

std::string por_extenso(Dia dia) {
    constexpr const char* meses[] = {"janeiro", "fevereiro", "março",    "abril",   "maio",     "junho",
                                     "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
    const std::chrono::year_month_day data{dia};
    const auto numero = static_cast<unsigned>(data.day());
    return std::to_string(numero) + (numero == 1 ? "º" : "") + " de " + meses[static_cast<unsigned>(data.month()) - 1];
}

using Trocas = std::map<std::string, std::string>;

Trocas trocas_da_semana(Dia dia) {
    const Dia domingo = dia - std::chrono::days{dia_da_semana(dia) - 1}, sabado = domingo + std::chrono::days{6};
    return {{"{semana}", std::to_string(semana_do_ano(dia))},
            {"{domingo}", por_extenso(domingo)},
            {"{sábado}", por_extenso(sabado)},
            {"{ano}", std::to_string(static_cast<int>(std::chrono::year_month_day{sabado}.year()))}};
}

std::string troca(std::string texto, const Trocas& trocas) {
    for (const auto& [de, para] : trocas)
        for (auto lugar = texto.find(de); lugar != texto.npos; lugar = texto.find(de, lugar + para.size()))
            texto.replace(lugar, de.size(), para);
    return texto;
}

// ---- A folha, em milímetros e pontos

constexpr double margem = (Folhas::largura - largura_util) / 2;
constexpr double topo_da_folha = 13;
constexpr double fim_da_folha = 283; // daí para baixo, só o rodapé
constexpr double base_do_rodape = 289;
constexpr double vao = 5; // entre dois blocos, e entre duas colunas de linhas de trabalho

constexpr LetraImpressa letra_titulo{22, true}, letra_subtitulo{13}, letra_rodape{9.5}, letra_secao{14, true},
    letra_grupo{12.5, true}, letra_linha{12.5}, letra_lugar{12.5, true}, letra_vazio{15}, letra_cabecalho{11.5, true},
    letra_tabela{11.5}, letra_nota{10}, letra_celula{11, true}, letra_trato{7, true}, letra_semanas{8};
constexpr double cinza_secao = 0.85, cinza_faixa = 0.94;
constexpr double altura_secao = 8.5, altura_grupo = 9, altura_fileira = 7, altura_nota = 4.8;
constexpr double lado_do_quadradinho = 4.2, depois_do_quadradinho = 7;
constexpr double altura_regua = 6, menor_celula = 11, maior_celula = 16;
constexpr int lado_do_mapa = 10;
constexpr const char* continua = " (continuação)";

// Um broto, no canto do título: duas folhas sobre um talo, num quadrado de lado 1.
constexpr Folhas::Ponto folha_esquerda[] = {{0.48, 0.62}, {0.12, 0.66}, {0.00, 0.44}, {0.02, 0.20},
                                            {0.34, 0.20}, {0.50, 0.36}, {0.48, 0.62}};
constexpr Folhas::Ponto folha_direita[] = {{0.48, 0.62}, {0.46, 0.28}, {0.66, 0.02}, {1.00, 0.00},
                                           {1.02, 0.34}, {0.84, 0.60}, {0.48, 0.62}};
constexpr double lado_do_broto = 15;

struct Desenho {
    const ModeloDeRelatorio& modelo;
    Trocas trocas;
    Folhas folhas;
    double y = fim_da_folha; // a primeira folha começa com o que for desenhado primeiro

    Desenho(const ModeloDeRelatorio& m, Dia dia)
        : modelo(m), trocas(trocas_da_semana(dia)), folhas(troca(m.titulo, trocas)) {}

    double resta() const { return fim_da_folha - y; }

    void broto(double x, double topo) {
        const auto lugar = [&](const Folhas::Ponto& p) {
            return Folhas::Ponto{x + p.x * lado_do_broto, topo + p.y * lado_do_broto};
        };
        const Folhas::Ponto pe = lugar({0.5, 1}), alto = lugar({0.48, 0.6});
        folhas.traco(pe.x, pe.y, alto.x, alto.y, 2);
        for (const auto& folha : {std::span(folha_esquerda), std::span(folha_direita)}) {
            std::vector<Folhas::Ponto> pontos;
            for (const Folhas::Ponto& p : folha) pontos.push_back(lugar(p));
            folhas.forma(pontos, 1.2, cinza_secao);
        }
    }

    void nova_folha() {
        constexpr double faixa = largura_util - lado_do_broto - 4;
        folhas.nova_folha();
        y = topo_da_folha;
        broto(margem + largura_util - lado_do_broto - 2, y + 2.5);
        folhas.escreve(troca(modelo.titulo, trocas), margem, y + 8.5, faixa, letra_titulo);
        folhas.escreve(troca(modelo.subtitulo, trocas), margem, y + 15, faixa, letra_subtitulo);
        y += lado_do_broto + 2.5;
        folhas.traco(margem, y, margem + largura_util, y, 1.5);
        y += vao;
    }

    // Passa à folha seguinte se o que vem não cabe nesta; as somas têm restos que não contam.
    void pede(double altura) {
        if (resta() < altura - 0.01) nova_folha();
    }

    void faixa_de_titulo(const std::string& titulo) {
        folhas.fundo({margem, y, largura_util, altura_secao}, cinza_secao);
        folhas.escreve(titulo, margem + 2, y + 6.1, largura_util - 4, letra_secao);
        y += altura_secao;
    }

    std::vector<std::string> linhas_das_notas(const BlocoImpresso& b) const {
        std::vector<std::string> linhas;
        for (const std::string& nota : b.notas)
            for (std::string& linha : folhas.quebra(nota, letra_nota, largura_util)) linhas.push_back(std::move(linha));
        return linhas;
    }

    void escreve_notas(const BlocoImpresso& b) {
        for (const std::string& linha : linhas_das_notas(b)) {
            pede(altura_nota);
            y += altura_nota;
            folhas.escreve(linha, margem, y, largura_util, letra_nota);
        }
    }

    void diz_vazio(const BlocoImpresso& b) {
        constexpr double altura = 8, recuo = 15;
        const auto linhas = folhas.quebra(b.vazio, letra_vazio, largura_util - 2 * recuo);
        pede(altura * static_cast<double>(linhas.size() + 1));
        for (const std::string& linha : linhas) {
            y += altura;
            folhas.escreve(linha, margem + recuo, y, largura_util - 2 * recuo, letra_vazio, Alinha::centro);
        }
        y += altura + vao;
    }

    void numera_folhas() {
        trocas["{páginas}"] = std::to_string(folhas.quantas());
        for (int i = 0; i < folhas.quantas(); ++i) {
            folhas.vai_a(i);
            trocas["{página}"] = std::to_string(i + 1);
            folhas.escreve(troca(modelo.rodape, trocas), margem, base_do_rodape, largura_util, letra_rodape,
                           Alinha::centro);
        }
    }
};

// ---- Lista: linhas de trabalho em colunas como as de um jornal, por seção e por grupo

struct Jornal {
    Desenho& d;
    const BlocoImpresso& b;
    const std::vector<Registro>& registros;
    double largura; // de uma coluna de linhas
    int colunas;

    Jornal(Desenho& desenho, const BlocoImpresso& bloco, const std::vector<Registro>& r)
        : d(desenho), b(bloco), registros(r), largura(depois_do_quadradinho) {
        for (const ColunaImpressa& c : b.colunas) largura += c.largura;
        colunas = std::max(1, static_cast<int>((largura_util + vao) / (largura + vao)));
    }

    std::string valor(std::size_t i, const std::string& campo) const {
        return campo.empty() ? "" : registros[i].campos.at(campo);
    }
    bool mesmo_grupo(std::size_t i, std::size_t j) const { return valor(i, b.grupo) == valor(j, b.grupo); }

    void linha(std::size_t i, double x, double topo) const {
        const double base = topo + altura_fileira - 2;
        d.folhas.moldura({x + 0.3, base - lado_do_quadradinho + 0.6, lado_do_quadradinho, lado_do_quadradinho}, 0.9);
        x += depois_do_quadradinho;
        for (const ColunaImpressa& c : b.colunas) {
            const bool lugar = &c == &b.colunas.front();
            d.folhas.escreve(valor(i, c.campo), x, base, c.largura - 1, lugar ? letra_lugar : letra_linha);
            x += c.largura;
        }
    }

    // Põe numa coluna, de cima para baixo, as linhas de `i` em diante que cabem na altura, sem passar de `fim`, cada
    // grupo com o seu nome. Devolve a primeira que não coube. Sem `pinta`, só mede.
    std::size_t coluna(std::size_t i, std::size_t comeco, std::size_t fim, double x, double altura, bool pinta) const {
        double usada = 0;
        for (const std::size_t primeira = i; i < fim; ++i) {
            const bool nomeia = !b.grupo.empty() && (i == primeira || !mesmo_grupo(i, i - 1));
            const double pede = altura_fileira + (nomeia ? altura_grupo : 0);
            if (usada + pede > altura) break;
            if (pinta) {
                const bool vem_de_antes = i > comeco && mesmo_grupo(i, i - 1);
                if (nomeia)
                    d.folhas.escreve(valor(i, b.grupo) + (vem_de_antes ? continua : ""), x,
                                     d.y + usada + altura_grupo - 2.2, largura, letra_grupo);
                linha(i, x, d.y + usada + pede - altura_fileira);
            }
            usada += pede;
        }
        return i;
    }

    // O mesmo, por todas as colunas.
    std::size_t colunas_ate(std::size_t i, std::size_t comeco, std::size_t fim, double altura, bool pinta) const {
        for (int c = 0; c < colunas; ++c) i = coluna(i, comeco, fim, margem + c * (largura + vao), altura, pinta);
        return i;
    }

    // Uma seção: colunas da menor altura em que tudo cabe ou, não cabendo na folha, cheias até o fim dela.
    void secao(std::size_t comeco, std::size_t fim) const {
        constexpr double minimo = altura_secao + altura_grupo + altura_fileira + 0.1; // cabe sempre uma linha
        for (std::size_t i = comeco; i < fim;) {
            d.pede(minimo);
            if (!b.secao.empty()) d.faixa_de_titulo(valor(i, b.secao) + (i > comeco ? continua : ""));
            double altura = altura_fileira;
            while (altura < d.resta() && colunas_ate(i, comeco, fim, altura, false) < fim) altura += 0.2;
            altura = std::min(altura, d.resta());
            i = colunas_ate(i, comeco, fim, altura, true);
            d.y = i < fim ? fim_da_folha : d.y + altura + vao;
        }
    }
};

void desenha_lista(Desenho& d, const BlocoImpresso& b, const std::vector<Registro>& registros) {
    const Jornal jornal(d, b, registros);
    for (std::size_t i = 0, fim = 0; i < registros.size(); i = fim) {
        while (fim < registros.size() && jornal.valor(fim, b.secao) == jornal.valor(i, b.secao)) ++fim;
        jornal.secao(i, fim);
    }
    d.escreve_notas(b);
}

// ---- Mapa: uma célula por canteiro, sempre inteiro numa folha

// A primeira célula do modelo vai em cima à esquerda, a segunda à direita numa moldura, as outras uma por linha.
void desenha_celula(Desenho& d, const BlocoImpresso& b, const Registro& r, int k, const Retangulo& lugar) {
    d.folhas.moldura(lugar, 0.5);
    const double x = lugar.x + 1.2, faixa = lugar.largura - 2.4;
    double base = lugar.y + 4.8;
    if (r.campos.at(numerado(b.celulas[0].campo, k)).empty()) return; // nada plantado
    for (std::size_t i = 0; i < b.celulas.size(); ++i) {
        const ColunaImpressa& c = b.celulas[i];
        const std::string& valor = r.campos.at(numerado(c.campo, k));
        if (valor.empty()) continue;
        if (i == 0) {
            d.folhas.escreve(valor, x, base, faixa, letra_celula);
        } else if (i == 1) {
            const double largura = d.folhas.mede(valor, letra_trato) + 1.4, esquerda = x + faixa - largura + 0.5;
            d.folhas.moldura({esquerda, base - 3.2, largura, 4}, 0.7);
            d.folhas.escreve(valor, esquerda + 0.7, base - 0.2, largura, letra_trato);
        } else {
            base += (lugar.altura - 6) / static_cast<double>(b.celulas.size() - 2);
            d.folhas.escreve(c.texto + ' ' + valor, x, base, faixa, letra_semanas);
        }
    }
}

void desenha_mapa(Desenho& d, const BlocoImpresso& b, const std::vector<Registro>& registros) {
    const double em_volta =
        altura_secao + 2 + altura_regua + 1 + altura_nota * static_cast<double>(d.linhas_das_notas(b).size());
    const auto fileiras = static_cast<double>(std::max<std::size_t>(registros.size(), 1));
    d.pede(em_volta + fileiras * menor_celula);
    const double altura = std::clamp((d.resta() - em_volta) / fileiras, 1.0, maior_celula);
    const ColunaImpressa& regua = b.colunas.front();
    const double largura = (largura_util - regua.largura) / lado_do_mapa;
    if (!b.titulo.empty()) d.faixa_de_titulo(b.titulo);
    d.y += 2 + altura_regua;
    for (int k = 0; k < lado_do_mapa; ++k)
        d.folhas.escreve(std::to_string(k + 1), margem + regua.largura + k * largura, d.y - 1.4, largura, letra_grupo,
                         Alinha::centro);
    for (const Registro& r : registros) {
        d.folhas.escreve(r.campos.at(regua.campo), margem, d.y + altura / 2 + 1.5, regua.largura - 1, letra_grupo,
                         Alinha::centro);
        for (int k = 0; k < lado_do_mapa; ++k)
            desenha_celula(d, b, r, k + 1, {margem + regua.largura + k * largura, d.y, largura, altura});
        d.y += altura;
    }
    d.y += 1;
    d.escreve_notas(b);
}

// ---- Tabela: o cabeçalho volta em cada folha

void cabecalho_da_tabela(Desenho& d, const BlocoImpresso& b, bool primeira) {
    if (!b.titulo.empty()) d.faixa_de_titulo(b.titulo + (primeira ? "" : continua));
    double x = margem;
    for (const ColunaImpressa& c : b.colunas) {
        d.folhas.escreve(c.texto, x + 1.5, d.y + 6, c.largura - 3, letra_cabecalho);
        x += c.largura;
    }
    d.y += 8;
    d.folhas.traco(margem, d.y, x, d.y, 1);
}

void desenha_tabela(Desenho& d, const BlocoImpresso& b, const std::vector<Registro>& registros) {
    constexpr double altura = 7;
    if (registros.empty()) return;
    d.pede(altura_secao + 8 + altura);
    cabecalho_da_tabela(d, b, true);
    bool faixa = false;
    for (const Registro& r : registros) {
        if (d.resta() < altura) {
            d.nova_folha();
            cabecalho_da_tabela(d, b, false);
        }
        if (faixa) d.folhas.fundo({margem, d.y, largura_util, altura}, cinza_faixa);
        faixa = !faixa;
        double x = margem;
        for (const ColunaImpressa& c : b.colunas) {
            d.folhas.escreve(r.campos.at(c.campo), x + 1.5, d.y + 5, c.largura - 3, letra_tabela);
            x += c.largura;
        }
        d.y += altura;
    }
    d.folhas.traco(margem, d.y, margem + largura_util, d.y, 0.5);
    d.y += 1;
    d.escreve_notas(b);
}

} // namespace

std::string desenha_relatorio(const ModeloDeRelatorio& modelo, const std::string& nome_do_banco, Dia dia) {
    Database banco = DBEngine.Workspaces(0).OpenDatabase(nome_do_banco);
    Desenho d(modelo, dia);
    d.nova_folha();
    constexpr void (*desenhos[])(Desenho&, const BlocoImpresso&, const std::vector<Registro>&) = {
        desenha_lista, desenha_mapa, desenha_tabela}; // na ordem de BlocoImpresso::Tipo
    for (const BlocoImpresso& b : modelo.blocos) {
        const std::vector<Registro> registros = le_tabela(modelo, b, banco);
        if (registros.empty() && !b.vazio.empty()) d.diz_vazio(b);
        desenhos[b.tipo](d, b, registros);
    }
    d.numera_folhas();
    return d.folhas.bytes();
}

} // namespace verdalia
