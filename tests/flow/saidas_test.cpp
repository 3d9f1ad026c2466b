// Os caminhos do centro, da horta, da sementeira e da agenda: os quadros, a ampulheta, a fala e o destino de cada um.
#include "roteiro.h"

namespace verdalia {
namespace {

constexpr auto centro = TelaId::INTRONEW, horta = TelaId::trabalhando_na_horta, agenda = TelaId::age;
constexpr auto sementeira = TelaId::controle_da_sementeira, ajuda = TelaId::help;

// clang-format off
constexpr auto enxada = "enx00c enx01c enx02c enx03c enx04c enx05c enx06c enx07c enx08c enx09c enx10c enx00c";
constexpr auto hortelao = "hort01 hort02 hort03 hort04 hort05 hort06 hort07 hort06 hort05 hort04 hort03 hort02 hort01 hort00";
constexpr auto mudas = "mudas000 mudas001 mudas002 mudas003 mudas004 mudas005 mudas006 mudas007";
constexpr auto folhas = "age00 age01 age02 age03 age04 age05 age06 age07 age08 age09 age10";

constexpr struct {
    TelaId tela;
    const char* controle;
    int indice;
    const char* quadros;
    bool ampulheta;
    const char* fala;
    TelaId destino;
    const char* topico;
} saidas[] = {
    {centro, "pic_feira", -1, "cesta0 cesta1 cesta2 cesta3 cesta4 cesta5 cesta6 cesta7 cesta8 cesta9", false, "\\vamfei.wav", TelaId::feira_horta, ""},
    {centro, "pic_horta", -1, enxada, false, "\\vamhor.wav", horta, ""},
    {centro, "pic_semen", -1, mudas, true, "\\vamsem.wav", sementeira, ""},
    {centro, "pic_agenda", -1, folhas, false, "\\vamage.wav", agenda, ""},
    {centro, "saida", -1, "port01 port02 port03 port04 port04 port03 port02 port01 port00", false, "\\s1.wav", TelaId::form_ok_nao, ""},
    {centro, "interroga", -1, "int05 int04 int03 int02 int01 int00", true, "", ajuda, "Orgânico"},
    {horta, "hortelino", -1, hortelao, true, "", centro, ""},
    {horta, "pic_agenda", -1, folhas, true, "\\vamage.wav", agenda, ""},
    {horta, "pic_semen", -1, mudas, true, "\\vamsem.wav", sementeira, ""},
    {horta, "Command2", 2, "ssem00 ssem01 ssem02 ssem03 ssem04 ssem05 ssem06 ssem07", true, "\\vamsem.wav", sementeira, ""},
    {horta, "lbl_atividades", -1, "", false, "\\ajuda.wav", ajuda, "Atividades"},
    {horta, "lbl_verduras", 0, "", false, "\\ajuda.wav", ajuda, "Culturas1"},
    {horta, "lbl_verduras", 1, "", false, "\\ajuda.wav", ajuda, "Culturas2"},
    {sementeira, "hortelino", -1, hortelao, true, "", centro, ""},
    {sementeira, "pic_agenda", -1, folhas, true, "\\vamage.wav", agenda, ""},
    {sementeira, "pic_horta", -1, enxada, true, "\\vamhor.wav", horta, ""},
    {sementeira, "Command4", 4, "enx00 enx01 enx02 enx03 enx04 enx05 enx06 enx07 enx08 enx09 enx10 enx00", true, "\\vamhor.wav", horta, ""},
    {sementeira, "lbl_atividades", -1, "", false, "\\ajuda.wav", ajuda, "Atividades_Sem"},
    {sementeira, "lbl_verduras", -1, "", false, "\\ajuda.wav", ajuda, "Culturas2"},
    {agenda, "hortelino", -1, hortelao, true, "", centro, ""},
    {agenda, "pic_semen", -1, mudas, true, "\\vamsem.wav", sementeira, ""},
    {agenda, "pic_horta", -1, enxada, false, "\\vamhor.wav", horta, ""},
    {agenda, "Label1", 3, "", false, "\\ajuda.wav", ajuda, "Agenda"},
};
// clang-format on

using Saidas = PartidaNaTela;

TEST_F(Saidas, CadaCaminhoMostraOsSeusQuadrosFalaEVaiAoSeuLugar) {
    prepara_banco();
    planta(0, cult_alface, 2);   // acende "Horta", na sementeira
    seq_pedido[cult_alface] = 2; // e "Sementeira", na horta
    som_ligado = auto_abastecido = true;
    primeira_carga = false;
    roteiro.duracao_dos_sons = 400;
    const auto percorre = [this](const auto& s, const char* controle, int indice) {
        SCOPED_TRACE(s.controle + (" " + std::to_string(static_cast<int>(s.tela))));
        recomeca_laco();
        mostra(s.tela);
        roteiro.tocados.clear();
        topico_help.clear();
        std::string vistos, quadro;
        roteiro.clica(controle, indice).espera_ms(5);
        for (std::istringstream quadros(s.quadros); quadros >> quadro;)
            roteiro.espera_ms(100).confere([&] {
                const Controle* c = tela_ativa()->controle(s.controle, s.indice);
                vistos += (vistos.empty() ? "" : " ") + nome(c->figura).substr(0, nome(c->figura).find('.'));
                EXPECT_EQ(c->ponteiro == ponteiro_ampulheta, s.ampulheta);
            });
        if (*s.fala != '\0')
            roteiro.espera_ms(140).confere([&] {
                EXPECT_EQ(falas(s.fala), 1);
                EXPECT_TRUE(carregada(s.tela)); // ouve-se até o fim
            });
        roteiro.espera_ms(600).confere([&] {
            EXPECT_TRUE(carregada(s.destino));
            EXPECT_EQ(carregada(s.tela), s.tela == centro && (s.destino == TelaId::form_ok_nao || s.destino == ajuda));
        });
        laco();
        EXPECT_EQ(vistos, s.quadros);
        EXPECT_EQ(topico_help, s.topico);
        EXPECT_TRUE(s.tela != agenda || s.destino != ajuda || tela_origem == "Agenda");
    };
    for (const auto& s : saidas) percorre(s, s.controle, s.indice);
    for (int i = 0; i < 5; ++i) { // a palavra faz o mesmo que a figura, e diz o mesmo
        percorre(saidas[i], "legenda", i);
        const Tela& t = entra_em<Tela>(centro);
        EXPECT_EQ(t.controle("legenda", i)->dica, t.controle(saidas[i].controle)->dica);
        EXPECT_EQ(t.controle("legenda", i)->ponteiro + t.controle("Label1", i)->ponteiro, 2 * ponteiro_mao);
    }
    unidade_cd = 1;
    grava_cd();
    entra_em<Tela>(centro);
    EXPECT_EQ(dir_media, "D:"); // onde o jogador disse que estão as figuras
}

} // namespace
} // namespace verdalia
