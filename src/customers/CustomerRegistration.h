#pragma once

#include "customers/Customer.h"

class CustomerForm;
class CustomerList;
class CustomerPhoto;
class Form;

/// Registers the customer in the form.
class CustomerRegistration
{
public:
    CustomerRegistration(Form &window, CustomerForm &form, CustomerList &list, CustomerPhoto &photo);

    void cmdok_Click();

private:
    void store(Customer customer, double codigo);
    /// Opens the window that sells an access code, unless the customer has one.
    void sellCode(const Customer &customer);

    Form &m_window;
    CustomerForm &m_form;
    CustomerList &m_list;
    CustomerPhoto &m_photo;
};
