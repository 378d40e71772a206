#include "customers/Customer.h"

Customer Customer::stored() const
{
    Customer result = *this;
    for (const CustomerText text :
         {&Customer::Nome, &Customer::Data_Nasc, &Customer::Filiacao, &Customer::Documento, &Customer::Nick,
          &Customer::Grupo, &Customer::Rua, &Customer::Numero, &Customer::Complemento, &Customer::Bairro,
          &Customer::Cidade, &Customer::CEP, &Customer::UF, &Customer::Tel_Residencial, &Customer::Tel_Comercial,
          &Customer::Tel_Celular, &Customer::CaminhoFoto})
        result.*text = (this->*text).toUpper();
    return result;
}
