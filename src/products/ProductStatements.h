#pragma once

#include <QString>

struct ProductRecord;

// The statements that store a product with the moment of its save.

QString insertStatement(const ProductRecord &product, double codigo);
QString updateStatement(const ProductRecord &product, double codigo);
