// Prints the text in the clipboard of the screen that it finds, which may be longer than any message.
#include <QClipboard>
#include <QGuiApplication>

#include <cstdio>

int main(int argumentCount, char **arguments)
{
    const QGuiApplication application(argumentCount, arguments);
    const QByteArray text = QGuiApplication::clipboard()->text().toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
}
