#include "platform/base/relogio.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace verdalia {

namespace {

Relogio relogio_do_sistema;

} // namespace

Relogio* relogio = &relogio_do_sistema;

Relogio::~Relogio() = default;

Momento Relogio::agora() {
    using namespace std::chrono;
    const std::time_t instante = std::time(nullptr);
    std::tm partes{};
    tzset();
    if (localtime_r(&instante, &partes) == nullptr) return Momento{seconds{instante}};
    // O campo do dia já vem certo para o fuso e o horário de verão: daqui em diante não há fuso nenhum.
    const year_month_day data{year{partes.tm_year + 1900}, month{static_cast<unsigned>(partes.tm_mon + 1)},
                              day{static_cast<unsigned>(partes.tm_mday)}};
    return sys_days{data} + hours{partes.tm_hour} + minutes{partes.tm_min} + seconds{partes.tm_sec};
}

std::int64_t Relogio::milissegundos() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

Dia hoje() {
    return std::chrono::floor<std::chrono::days>(relogio->agora());
}

int dia_da_semana(Dia dia) {
    return static_cast<int>(std::chrono::weekday{dia}.c_encoding()) + 1;
}

int semana_do_ano(Dia dia) {
    using namespace std::chrono;
    const Dia primeiro{year_month_day{dia}.year() / January / 1};
    return static_cast<int>((dia - primeiro).count() + dia_da_semana(primeiro) - 1) / 7 + 1;
}

std::string texto_do_dia(Dia dia) {
    const std::chrono::year_month_day data{dia};
    return std::to_string(static_cast<unsigned>(data.day())) + "/" +
           std::to_string(static_cast<unsigned>(data.month())) + "/" + std::to_string(static_cast<int>(data.year()));
}

std::string texto_iso(Dia dia) {
    const std::chrono::year_month_day data{dia};
    std::array<char, 32> texto{};
    std::snprintf(texto.data(), texto.size(), "%04d-%02u-%02u", static_cast<int>(data.year()),
                  static_cast<unsigned>(data.month()), static_cast<unsigned>(data.day()));
    return texto.data();
}

std::optional<Dia> dia_de_iso(std::string_view texto) {
    if (texto.size() != 10) return std::nullopt;
    std::array<int, 3> partes{};
    int parte = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool traco = i == 4 || i == 7;
        if (traco ? texto[i] != '-' : texto[i] < '0' || texto[i] > '9') return std::nullopt;
        if (traco)
            ++parte;
        else
            partes[parte] = partes[parte] * 10 + (texto[i] - '0');
    }
    using namespace std::chrono;
    const year_month_day data{year{partes[0]}, month{static_cast<unsigned>(partes[1])},
                              day{static_cast<unsigned>(partes[2])}};
    if (!data.ok()) return std::nullopt;
    return Dia{data};
}

} // namespace verdalia
