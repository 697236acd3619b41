#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One text of a translation file.
struct TranslatedText
{
    QString context;
    QString source;
    QString translation;
    QString state; ///< Empty for a finished one; otherwise what the file calls it, as in "unfinished".
};

/// The files in the translations folder of the source tree, by their names, in alphabetical order.
QStringList TranslationFiles();

/// The texts of the file \p name; fails the test when it cannot be read.
QVector<TranslatedText> ReadTranslationFile(const QString& name);

/// The key that \p text marks with "&", as a small letter; null for none.
QChar MnemonicOf(const QString& text);
