#include "platform/base/relogio.h"

#include "apoio.h"

#include <ctime>

namespace verdalia {

// Anda dia a dia e vira a semana em cada domingo: não usa a conta de `semana_do_ano`.
TEST(Calendario, SemanaDoAnoContraAFolhinha) {
    int semana = 0, dia_semana = 2; // 1º de janeiro de 1900 foi uma segunda-feira
    for (Dia d = dia(1900, 1, 1); d < dia(2200, 1, 1); d += std::chrono::days{1}) {
        const std::chrono::year_month_day data{d};
        if (data.month() == std::chrono::January && data.day() == std::chrono::day{1})
            semana = 1;
        else if (dia_semana == 1)
            ++semana;
        ASSERT_EQ(semana_do_ano(d), semana) << texto_iso(d);
        ASSERT_EQ(dia_da_semana(d), dia_semana) << texto_iso(d);
        ASSERT_EQ(dia_de_iso(texto_iso(d)), d);
        dia_semana = dia_semana % 7 + 1;
    }
    for (const char* torto : {"", "2026-3-1", "2026-02-29", "2026-13-01", "2026-01-00", "2026/01/01", "2026-01-011",
                              " 2026-01-1", "2026-01-0x"})
        EXPECT_FALSE(dia_de_iso(torto)) << torto;
}

// O relógio de verdade mostra a hora da parede: com o fuso três horas atrás, três horas menos que a universal; no
// horário de verão, duas.
TEST(Calendario, HoraLocal) {
    const char* antes = std::getenv("TZ");
    const std::string guardado = antes == nullptr ? "" : antes;
    for (const auto& [fuso, horas] : {std::pair("BRT+3", 3), std::pair("BRT3BRST,0/0,J365/25", 2)}) {
        setenv("TZ", fuso, 1);
        EXPECT_NEAR(Relogio().agora().time_since_epoch().count() + horas * 3600, std::time(nullptr), 5) << fuso;
    }
    antes == nullptr ? unsetenv("TZ") : setenv("TZ", guardado.c_str(), 1);
}

} // namespace verdalia
