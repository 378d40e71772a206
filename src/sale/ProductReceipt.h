#pragma once

namespace Ui {
class frmvenda;
}
class SaleDiscount;

/// Prints the receipt of the sale that the window shows.
void printProductReceipt(const Ui::frmvenda &window, const SaleDiscount &discount);
