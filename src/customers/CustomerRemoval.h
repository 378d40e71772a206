#pragma once

class FlexGrid;
class Form;
struct CustomerState;

/// Deletes the customers between the row picked last and the end of the selection, with their access codes. True when
/// the window has to be loaded anew. The pointer stays an hourglass until the caller is done.
bool removeCustomers(Form &form, const FlexGrid &tab_clientes, const CustomerState &state);
