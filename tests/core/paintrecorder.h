#pragma once

#include <QCoreApplication>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QRegularExpression>
#include <QStringList>
#include <QWidget>

#include <utility>

/// A paint device that writes down each line with its pen's colour and each text with the start of
/// its baseline: "line #ff0000 225,96 339,96", "text #000000 0,310 -100"; a pen that is not one
/// pixel wide has its width after the colour. Fills leave no trace.
class PaintRecorder : public QPaintDevice {
public:
    explicit PaintRecorder(const QSize& size)
        : m_size(size)
        , m_engine(&m_log)
    {
    }
    QPaintEngine* paintEngine() const override { return &m_engine; }
    /// The paint operations of a widget and its children.
    static QStringList logOf(QWidget& widget)
    {
        PaintRecorder recorder(widget.size());
        widget.render(&recorder);
        return recorder.log();
    }
    /// The texts that a widget paints, without where and how.
    static QStringList textsOf(QWidget& widget)
    {
        QStringList texts = logOf(widget).filter(QRegularExpression("^text"));
        return texts.replaceInStrings(QRegularExpression("^text \\S+ \\S+ "), "");
    }
    QStringList log() const { return m_log; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmWidth)
            return m_size.width();
        if (metric == PdmHeight)
            return m_size.height();
        return metric == PdmDevicePixelRatio ? 1 : 96; // dots per inch, for whatever asks
    }

private:
    struct Engine : QPaintEngine {
        explicit Engine(QStringList* log)
            : QPaintEngine(AllFeatures)
            , m_log(log)
        {
        }
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState& changed) override
        {
            if (changed.state() & DirtyPen)
                m_pen = changed.pen();
        }
        void drawLines(const QLine* lines, int count) override
        {
            const QString width = m_pen.width() == 1 ? "" : QString(" %1").arg(m_pen.width());
            const QByteArray pen = (m_pen.color().name() + width).toLatin1();
            for (const QLine* line = lines; line < lines + count; ++line)
                *m_log << QString::asprintf("line %s %d,%d %d,%d", pen.data(), line->x1(),
                    line->y1(), line->x2(), line->y2());
        }
        void drawTextItem(const QPointF& at, const QTextItem& item) override
        {
            *m_log << QString("text %1 %2,%3 ").arg(m_pen.color().name()).arg(at.x()).arg(at.y())
                    + item.text();
        }
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
        void drawPath(const QPainterPath&) override { }
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }

        QStringList* m_log;
        QPen m_pen;
    };

    QSize m_size;
    QStringList m_log;
    mutable Engine m_engine;
};

/// Counts how often a widget is painted.
class RepaintCounter : public QObject {
public:
    explicit RepaintCounter(QWidget* watched) { watched->installEventFilter(this); }
    /// The number of repaints since the last call, including pending ones.
    int taken()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_count = 0;
};
