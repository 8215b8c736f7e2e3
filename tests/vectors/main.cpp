// vantle_vectors <form> <folder-or-file>: runs all cases of that form and prints each mismatch.
//
// Exit code 0 when all that ran came out as expected, 1 on a mismatch or when no case ran, 2 on
// wrong arguments.
#include "vectors/Runner.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream out(stdout);
    const auto& forms = vantle::vectors::allForms();
    const auto form = std::ranges::find(forms, arguments.value(1), &vantle::vectors::Form::name);
    if (arguments.size() != 3 || form == forms.end()) {
        out << "usage: vantle_vectors <form> <folder-or-file>\nforms:";
        for (const auto& known : forms)
            out << ' ' << known.name;
        out << '\n';
        return 2;
    }
    return vantle::vectors::runForm(*form, arguments.at(2), out).passed() ? 0 : 1;
}
