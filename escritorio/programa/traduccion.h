#pragma once

#include <QTranslator>

namespace cuencalia {

/// The Spanish of the toolkit's texts that its own translation leaves in English.
class TraduccionRestante : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* contexto, const char* texto, const char* distincion, int n) const override;
};

}  // namespace cuencalia
