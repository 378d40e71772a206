#pragma once

class FlexGrid;

// The list of customers on paper and in a file, in the grid's order and with its texts.

void printCustomers(const FlexGrid &tab_clientes, int TotalClientes);
void saveCustomers(const FlexGrid &tab_clientes, int TotalClientes);
