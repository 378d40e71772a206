#include "bench/Program.h"

#include "cafe/Cafe.h"
#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "data/Acesso_BD.h"
#include "windows/OpenForms.h"

Program::Program(const QString &cafe)
{
    CaminhoBD = dataFileOf(cafe);
    NomeIdioma = "PORTUGUES.LNG";
    SimboloMoeda = "R$";
    Carregar_Idioma();
    PromptService::use(this);
}

Program::~Program()
{
    Descarregar_Forms();
    Fechar_BD(BancoPrincipal);
    PromptService::use(nullptr);
}
