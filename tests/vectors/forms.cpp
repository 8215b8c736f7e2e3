#include "vectors/forms.h"

namespace vantle::vectors {

const QList<Form>& allForms() {
    static const QList<Form> forms = {};
    return forms;
}

} // namespace vantle::vectors
