// O relógio: a hora local do computador e os milissegundos dos temporizadores.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace verdalia {

// Dias e momentos são os da parede, sem fuso: um dia tem sempre 24 horas, e a semana 7 dias.
using Dia = std::chrono::sys_days;
using Momento = std::chrono::sys_seconds;

// O relógio de verdade; os testes põem outro em `relogio`.
struct Relogio {
    virtual ~Relogio();
    virtual Momento agora();              // hora local
    virtual std::int64_t milissegundos(); // contados de um ponto qualquer; nunca voltam atrás
};

// Em uso agora; nunca nulo.
extern Relogio* relogio;

// O dia de hoje, sem a hora.
Dia hoje();

// 1 (domingo) a 7 (sábado).
int dia_da_semana(Dia dia);

// 1 a 54. As semanas começam no domingo e a 1 é a que tem o dia 1º de janeiro; um dia de dezembro que divide
// a semana com o 1º de janeiro seguinte ainda é da semana 53 ou 54 do seu próprio ano.
int semana_do_ano(Dia dia);

// "1/3/2026", como se lê.
std::string texto_do_dia(Dia dia);

// "2026-03-01". Anos de 0 a 9999.
std::string texto_iso(Dia dia);

// Lê o que `texto_iso` escreve; qualquer outra coisa, como um dia que não existe, dá nada.
std::optional<Dia> dia_de_iso(std::string_view texto);

} // namespace verdalia
