// Quem está atrás de cada nome de tela: a navegação inteira do jogo. Só main e os testes a incluem.
#pragma once
#include "flow/comum/dialogos.h"
#include "agenda/age.h"
#include "flow/conf.h"
#include "flow/conf_cd.h"
#include "flow/fundo.h"
#include "flow/intronew.h"
#include "garden/trabalhando_na_horta.h"
#include "hypertext/help.h"
#include "market/feira_horta.h"
#include "memory/gamedio.h"
#include "memory/mem_ok.h"
#include "memory/rank_form.h"
#include "seedbed/controle_da_sementeira.h"

namespace verdalia {

template <class T> std::unique_ptr<Tela> nova() {
    return std::make_unique<T>();
}

inline constexpr FabricaDeTela fabricas_do_jogo[] = {
    {TelaId::fundo, nova<fundo>},
    {TelaId::Conf_cd, nova<Conf_cd>},
    {TelaId::INTRONEW, nova<INTRONEW>},
    {TelaId::conf, nova<conf>},
    {TelaId::feira_horta, nova<feira_horta>},
    {TelaId::controle_da_sementeira, nova<controle_da_sementeira>},
    {TelaId::trabalhando_na_horta, nova<trabalhando_na_horta>},
    {TelaId::age, nova<age>},
    {TelaId::help, nova<help>},
    {TelaId::gamedio, nova<gamedio>},
    {TelaId::mem_ok, nova<mem_ok>},
    {TelaId::rank_form, nova<rank_form>},
    {TelaId::ok, nova<ok>},
    {TelaId::form_ok_nao, nova<form_ok_nao>},
    {TelaId::ok_help, nova<ok_help>},
};

} // namespace verdalia
