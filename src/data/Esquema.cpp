#include "data/Esquema.h"

namespace {

using enum FieldType;

// Dates, times, money and quantities are texts: the programs write them by the computer's regional settings and turn
// them into numbers where they compute. Only codes and cash periods are numbers, and the percentages and amounts of the
// discount rules, which a later step turns into such.

TableDef clientes()
{
    return {"Clientes",
            {{"Codigo", Number},
             {"Nome", Text},
             {"Data_Nasc", Text},
             {"Rua", Text},
             {"Numero", Text},
             {"Complemento", Text},
             {"Bairro", Text},
             {"Cidade", Text},
             {"UF", Text},
             {"CEP", Text},
             {"Tel_Residencial", Text},
             {"Tel_Comercial", Text},
             {"Tel_Celular", Text},
             {"E_mail", Text},
             {"Obs", Text},
             {"Grupo", Text},
             {"Nick", Text},
             {"Filiacao", Text},
             {"Documento", Text},
             {"Autorizado", Boolean},
             {"CaminhoFoto", Text},
             {"MsgObs", Boolean}},
            KeyKind::Refuse,
            "Codigo",
            {"Nome", "Nick", "Documento"}};
}

TableDef grupo_Clientes()
{
    return {"Grupo_Clientes", {{"Grupo", Text}, {"Desconto", Text}}, KeyKind::None, {}, {}};
}

TableDef produtos()
{
    return {"Produtos",
            {{"Codigo", Number},
             {"Data", Text},
             {"Hora", Text},
             {"Descrição", Text},
             {"Quantidade", Text},
             {"Estoque_Min", Text},
             {"Valor_Unitario", Text},
             {"Fornecedor", Text},
             {"Cod", Text},
             {"Cod_Barra", Text},
             {"Servico", Boolean},
             {"Cardapio", Boolean},
             {"Categoria", TextAnyCase}},
            KeyKind::Refuse,
            "Codigo",
            {"Descrição", "Cod", "Cod_Barra"}};
}

TableDef categoria()
{
    return {"Categoria", {{"Codigo", Number}, {"Nome", TextAnyCase}}, KeyKind::Refuse, "Codigo", {"Nome"}};
}

TableDef codigo_Acesso()
{
    return {"Codigo_Acesso",
            {{"Codigo_Acesso", Text},
             {"Status", Text},
             {"Valor_Disponivel", Text},
             {"Tipo_Codigo", Text},
             {"URL", Text},
             {"Data_Criacao", Text},
             {"Vinculado", Boolean},
             {"Vendido", Boolean}},
            KeyKind::Refuse,
            "Codigo_Acesso",
            {}};
}

// Two terminals may read the same highest number. Links and sales are addressed by names and codes alone, so the later
// one takes the next number and nothing that was sold is lost.

TableDef links()
{
    return {"Links",
            {{"Codigo", Number}, {"Nome", Text}, {"Codigo_Acesso", Text}},
            KeyKind::Renumber,
            "Codigo",
            {"Nome", "Codigo_Acesso"}};
}

// The sale tables grow for years. They are searched by what a rename or a change of category follows, and by nothing
// else, because each further index is paid for with every line that is sold.

TableDef venda_Codigos()
{
    return {"Venda_Codigos",
            {{"Codigo", Number},
             {"Data", Text},
             {"Hora", Text},
             {"Codigo_Acesso", Text},
             {"Nome", Text},
             {"Nick", Text},
             {"Valor", Text},
             {"Recarregamento", Boolean},
             {"Avulsa", Boolean},
             {"Desconto", Text},
             {"Motivo_Desconto", Text},
             {"Id_Caixa", Number}},
            KeyKind::Renumber,
            "Codigo",
            {"Nome"}};
}

TableDef venda_Produtos(const QString &name = "Venda_Produtos")
{
    return {name,
            {{"Codigo", Number},
             {"Data", Text},
             {"Hora", Text},
             {"Descrição", Text},
             {"Quantidade", Text},
             {"Nome", Text},
             {"Nick", Text},
             {"Avulsa", Boolean},
             {"Debito", Boolean},
             {"Valor_Total", Text},
             {"Desconto", Text},
             {"Motivo_Desconto", Text},
             {"Data_Pag", Text},
             {"Hora_Pag", Text},
             {"Id_Caixa", Number},
             {"Id_Caixa_Pago", Number},
             {"Categoria", TextAnyCase}},
            KeyKind::Renumber,
            "Codigo",
            {"Nome", "Descrição"}};
}

TableDef descontos()
{
    return {"Descontos",
            {{"Codigo", Number},
             {"Motivo_Desconto", Text},
             {"Fixo", Boolean},
             {"Relativo", Text},
             {"Absoluto", Text},
             {"Grupo", Text},
             {"Categoria", TextAnyCase},
             {"AtoCadastro", Boolean},
             {"Valor", Text},
             {"TipoVenda", Text},
             {"Condicao", Text},
             {"LiberarAuto", Boolean}},
            KeyKind::Refuse,
            "Codigo",
            {}};
}

TableDef registro_Caixa()
{
    return {"Registro_Caixa", {{"ID_Caixa", Number}, {"Caixa_Aberto", Boolean}}, KeyKind::Refuse, "ID_Caixa", {}};
}

TableDef empresa()
{
    return {"Empresa",
            {{"Codigo", Number},
             {"Nome", Text},
             {"Razao_Social", Text},
             {"CGC", Text},
             {"Endereco", Text},
             {"Numero", Text},
             {"Bairro", Text},
             {"Cidade", Text},
             {"UF", Text},
             {"Cep", Text}},
            KeyKind::Refuse,
            "Codigo",
            {}};
}

/// A table that follows a customer's name and nick and is otherwise the administration program's own.
TableDef followsCustomer(const QString &name)
{
    return {name, {{"Nome", Text}, {"Nick", Text}}, KeyKind::None, {}, {"Nome"}};
}

} // namespace

QList<SchemaStep> esquemaDoBanco(OtiTable oti)
{
    SchemaStep first{1,
                     {clientes(), grupo_Clientes(), produtos(), categoria(), codigo_Acesso(), links(), venda_Codigos(),
                      venda_Produtos(), descontos(), registro_Caixa(), empresa(), followsCustomer("Lista_espera"),
                      followsCustomer("Log"), followsCustomer("Clientes_Bloqueados"),
                      followsCustomer("Monitor_Impressao")}};
    if (oti == OtiTable::With)
        first.NewTables.append(venda_Produtos("Venda_ProdutosOti"));
    // Percentages and amounts mean the same on a computer with another decimal separator.
    const SchemaStep numbers{2, {}, {{"Descontos", {"Relativo", "Absoluto"}}}};
    return {first, numbers};
}

QList<TableDef> tabelasDoBanco(OtiTable oti)
{
    const QList<SchemaStep> steps = esquemaDoBanco(oti);
    QList<TableDef> tables;
    for (const SchemaStep &step : steps) {
        tables += step.NewTables;
        for (const FieldsToNumbers &change : step.NewNumbers)
            for (TableDef &table : tables)
                for (FieldDef &field : table.Fields)
                    if (table.Name == change.Table && change.Fields.contains(field.Name))
                        field.Type = Number;
    }
    return tables;
}
