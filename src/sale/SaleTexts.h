#pragma once

#include <QString>

/// A text of the sale window, read at the moment of use.
QString saleText(const QString &key);
/// A program-wide text of the sale window.
QString loadedSaleText(const QString &key);
/// The sale window's information box with the text of that key.
void saleNotice(const QString &key);
/// The same with a text that was put together.
void saleNoticeText(const QString &text);
