#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QTranslator>
#include <QVector>

#include <vector>

/// Writes down every text that is to be translated while it lives, and knows none of them.
class NotingTranslator : public QTranslator
{
public:
    NotingTranslator() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* note, int /*n*/) const override
    {
        m_requests.push_back({QByteArray(context), QByteArray(source), QByteArray(note)});
        return {};
    }
    bool isEmpty() const override { return false; }

    /// The texts of \p context with the notes to their translator, in the order in which they were asked for.
    QVector<QPair<QByteArray, QByteArray>> TextsIn(const QByteArray& context) const
    {
        QVector<QPair<QByteArray, QByteArray>> texts;
        for (const Request& request : m_requests) {
            if (request.context == context) {
                texts.append({request.source, request.note});
            }
        }
        return texts;
    }

    /// The contexts in which \p source was asked for, in that order.
    QList<QByteArray> ContextsOf(const QByteArray& source) const
    {
        QList<QByteArray> contexts;
        for (const Request& request : m_requests) {
            if (request.source == source) {
                contexts.append(request.context);
            }
        }
        return contexts;
    }

private:
    struct Request
    {
        QByteArray context;
        QByteArray source;
        QByteArray note;
    };
    mutable std::vector<Request> m_requests;
};
