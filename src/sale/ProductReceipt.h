#pragma once

#include "sale/Cart.h"

namespace Ui {
class frmvenda;
}
class SaleDiscount;

/// Prints the receipt of the sale that the window shows.
void printProductReceipt(const Ui::frmvenda &window, const Cart &cart, const SaleDiscount &discount);
