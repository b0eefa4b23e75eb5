// The start-up that every run of Glyphor pays for.

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return 0;
}
