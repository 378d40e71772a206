#include "platform/base/Err.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Application.h"
#include "tour/Codes.h"
#include "tour/ContactSheets.h"
#include "tour/Customers.h"
#include "tour/OffscreenScreen.h"
#include "tour/ProductSales.h"
#include "tour/Products.h"
#include "tour/Tour.h"

#include <QTextStream>

// Works the real windows on a fresh demo café as an attendant would. Ends with 1 when anything differed from what was
// expected, with 2 when it could not begin.
int main(int argc, char **argv)
{
    // As large as the small screens at counters, so that no window is cut; a desktop's process brings its own.
    const OffscreenScreen screen(1366, 768);
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qputenv("QT_QPA_PLATFORM", screen.platform());
    Application application(argc, argv);
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const QStringList arguments = Application::arguments();
    if (arguments.size() == 4 && arguments.at(1) == "--scenes")
        return drawScenes(arguments.at(2), arguments.at(3)) ? 0 : 1;
    if (arguments.size() == 3 && arguments.at(1) == "--sheets")
        return drawContactSheets(arguments.at(2)) ? 0 : 1;
    if (arguments.size() != 2) {
        QTextStream(stderr) << "Usage: morvelane-tour FOLDER\n";
        return 2;
    }
    try {
        Tour tour(arguments.at(1));
        tourProductSales(tour);
        tourCustomers(tour);
        tourCodes(tour);
        tourProducts(tour);
        tour.chapter("What the data file holds");
        tour.tellStoredSales();
        tour.attendant().finish();
        return tour.failed() ? 1 : 0;
    } catch (const RunTimeError &error) {
        QTextStream(stderr) << error.Description() << '\n';
        return 2;
    }
}
