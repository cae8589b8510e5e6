#pragma once

class QMainWindow;
class QPrinter;

namespace calvento {

/// Prints what a window shows below its menu, as large as the page allows in its own proportions, at the printer's
/// resolution, on the page turned to suit. False where the printer does not take the job.
bool imprimirVista(QMainWindow& vista, QPrinter& impresora);

}  // namespace calvento
