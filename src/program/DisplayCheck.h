// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QApplication;

/// Opens the display, or says in one line why not.
namespace DisplayCheck {

/// The application object. Without a usable display the program ends here with exit status 1 and one line on standard
/// error, in place of Qt's abort. argc must outlive the application.
std::unique_ptr<QApplication> createApplication(int& argc, char** argv);

} // namespace DisplayCheck
