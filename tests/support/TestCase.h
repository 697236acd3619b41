#pragma once

#include "tests/support/TestProgram.h"

#include <QObject>
#include <QSet>
#include <QString>
#include <QTest>

class QWidget;

/// Base of every test class. A test function fails when it causes a warning that it did not announce, when an
/// announced warning stays away, and when it leaves a top-level window behind.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /// Announces one warning whose text contains \p part.
    static void ExpectWarning(const QString& part);

    /// Run before and after each test function.
    virtual void SetUp() {}
    virtual void TearDown() {}

private Q_SLOTS:
    void init();
    void cleanup();

private:
    QSet<QWidget*> m_windowsBefore;
};
