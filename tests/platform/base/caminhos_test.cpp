#include "apoio.h"

namespace verdalia {

namespace fs = std::filesystem;

struct Caminhos : Partida {
    Caminhos() : antes(pastas_de_montagem) { pastas_de_montagem = {media / "ana", media}; }
    ~Caminhos() override {
        pastas_de_montagem = antes;
        procura_unidades();
    }
    std::vector<fs::path> antes;
    fs::path media = pasta.raiz / "media";
};

TEST_F(Caminhos, JogadorPrimeiroDepoisInstalada) {
    escreve(instalada / "audio" / "Correto" / "BLIP.wav", "i");
    EXPECT_EQ(acha("\\audio\\correto\\blip.wav"), instalada / "audio/Correto/BLIP.wav");
    escreve(jogador / "Audio" / "correto" / "Blip.wav", "j");
    EXPECT_EQ(acha("\\audio\\correto\\blip.wav"), jogador / "Audio/correto/Blip.wav");
    // Duas pastas que só diferem em maiúsculas.
    escreve(instalada / "Anima" / "um.bmp", "");
    escreve(instalada / "anima" / "dois.bmp", "");
    EXPECT_EQ(acha("\\anima\\um.bmp"), instalada / "Anima/um.bmp");
    EXPECT_EQ(acha("\\ANIMA\\dois.bmp"), instalada / "anima/dois.bmp");
    EXPECT_FALSE(acha("D:\\anima\\não_há.bmp"));
}

TEST_F(Caminhos, CaminhosTortosSaoRecusados) {
    escreve(pasta.raiz / "segredo.txt", "");
    escreve(jogador / "a" / "x.txt", "");
    const std::string com_nulo("\\a\0b", 4);
    for (const std::string& torto :
         {std::string("\\..\\segredo.txt"), std::string("\\a/x.txt"), std::string("a\\x.txt"), std::string(),
          std::string("B:\\a"), std::string("I:\\a"), com_nulo}) {
        EXPECT_FALSE(acha(torto)) << torto;
        EXPECT_THROW(para_gravar(torto), std::runtime_error) << torto;
    }
    EXPECT_EQ(acha("\\a\\\\.\\x.txt"), jogador / "a/x.txt");
}

TEST_F(Caminhos, UnidadesPelaOrdemDosVolumes) {
    escreve(media / "ana" / "ZEBRA" / "anima" / "z.bmp", "");
    escreve(media / "cdrom" / "ANIMA" / "port00.bmp", "");
    escreve(media / "ana" / "anima" / "nada.bmp", ""); // um volume chamado "anima" não faz de /media/ana um volume
    procura_unidades();
    EXPECT_EQ(nome_da_unidade(1) + nome_da_unidade(2), "ZEBRAcdrom");
    for (const int vazia : {-1, 0, 3, 6}) EXPECT_EQ(nome_da_unidade(vazia), "");
    EXPECT_EQ(acha("E:\\anima\\port00.bmp"), media / "cdrom/ANIMA/port00.bmp");
    EXPECT_TRUE(unidade_tem_figuras(2));
    EXPECT_FALSE(unidade_tem_figuras(0) || unidade_tem_figuras(3));
    escreve(instalada / "Anima" / "x.bmp", "");
    EXPECT_TRUE(unidade_tem_figuras(0));

    fs::remove_all(media / "cdrom"); // o disco foi tirado
    EXPECT_FALSE(unidade_tem_figuras(2) || acha("E:\\anima\\port00.bmp"));
}

} // namespace verdalia
