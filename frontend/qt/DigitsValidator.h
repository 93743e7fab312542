#pragma once

#include <QString>
#include <QValidator>

#include <algorithm>

namespace qt {

/// Lets digits pass, as many as there are, also none. The toolkit's validator of regular
/// expressions could do it too, but compiling the expression takes 0.3 MB that stay.
class CDigitsValidator final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        const bool isNumber =
            std::ranges::all_of(text, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
        return isNumber ? Acceptable : Invalid;
    }
};

}
