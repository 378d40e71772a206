#pragma once

class SaleDiscount;
struct CodeState;

/// Prints the receipt of a code that was sold.
void printCodeReceipt(const CodeState &state, const SaleDiscount &discount);
