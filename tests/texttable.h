#pragma once

#include "files.h"

#include <QtTest>

// Most tables here have two columns: the input, and the expected result in words.

inline void addColumns()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");
}

inline void addRow(const char* title, const QByteArray& input, const QByteArray& expected)
{
    QTest::newRow(title) << input << expected;
}

/// Adds the rows of a text file beside the tests. Each row is a title, then the input in lines that
/// begin with four blanks, then the expected text in lines that begin with "= ", an empty one with
/// "="; without such lines the expected text is empty. A line of input may have its expected text
/// on the same line, after "  = "; " | " separates expected lines. A line that begins with "#" is a
/// comment.
inline void addRowsOf(const QString& path)
{
    static const QRegularExpression comment("^#.*\n", QRegularExpression::MultilineOption);
    static const QRegularExpression row("^\n*(.+)\n((?: {4}.*\n)+)((?:=.*\n)*)\n*");
    static const QRegularExpression mark("^(?: {4}|= ?)", QRegularExpression::MultilineOption);
    static const QRegularExpression answer("  = (.*)$", QRegularExpression::MultilineOption);
    QString rest = QString::fromUtf8(readFile(path)).remove(comment);
    QVERIFY2(!rest.isEmpty(), qPrintable(path));
    while (!rest.isEmpty()) {
        const QRegularExpressionMatch match = row.match(rest);
        QVERIFY2(match.hasMatch(), qPrintable("no row: " + rest.left(100)));
        QString expected;
        for (QRegularExpressionMatchIterator each = answer.globalMatch(match.captured(2));
             each.hasNext();)
            expected += each.next().captured(1) + '\n';
        QString input = match.captured(2);
        input.remove(answer).remove(mark);
        expected += match.captured(3).remove(mark);
        expected.replace(" | ", "\n").chop(1);
        addRow(match.captured(1).toUtf8(), input.toUtf8(), expected.toUtf8());
        rest.remove(0, match.capturedLength());
    }
}

/// A table of such rows alone.
inline void addTableOf(const QString& path)
{
    addColumns();
    addRowsOf(path);
}
