// studio/files: the built-in template programs (studio/templates).
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace ClockStudio {

struct Template
{
    QString name; ///< of its file, without the suffix
    QString title;
    QString description;
};

/// In the order of the gallery.
QVector<Template> Templates();

/// A template's program; empty for an unknown name.
QByteArray TemplateBytes(const QString &name);

} // namespace ClockStudio
