#pragma once

#include <QPageLayout>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QPagedPaintDevice;

namespace platform {

class SavePanel;

enum class PanelKind { Open, Save, Print };

/** What an open, save or print panel is asked to show. */
struct PanelRequest
{
    PanelKind kind = PanelKind::Open;
    bool choosesFiles = true;
    bool choosesFolders = false;
    bool choosesSeveral = false;
    bool createsFolders = false;
    /** File name extensions without the dot that can be chosen; none means any type. */
    std::optional<QStringList> types;
    /** Save panels: extensions other than the listed ones may be typed. */
    bool allowsOtherTypes = false;
    QString message;
    QString name;   ///< save panels: the suggested name
    QString folder; ///< where the panel opens, a path; empty for the last folder used
    bool showsTagField = false;
    /** Open and save panels: what is shown under the list of files, a view; null for nothing. */
    QPointer<QObject> accessory;
    /** Notifies of changes of the types while the panel is open; null if they cannot change. */
    QPointer<SavePanel> panel;
    int pageCount = 1; ///< print panels: how many pages there are to choose from
    QPageLayout page;  ///< print panels: the paper and its orientation, which the user may change there
};

/** Which pages are printed, in which order and how often, as chosen in a print panel. */
struct PrintPages
{
    int from = 0; ///< the first page, from 1; 0 for all of them
    int to = 0;
    int copies = 1; ///< those that the printer does not make itself
    bool areCollated = true;
    bool isBackwards = false;
};

/** What the user did with a panel. Anything but acceptance counts as cancelled. */
struct PanelAnswer
{
    bool accepted = false;
    QStringList paths; ///< absolute, in the order in which the panel reports them
    QStringList tags;
    /** Print panels: where to print, configured as the user chose; null if a path is given instead. */
    std::shared_ptr<QPagedPaintDevice> printer = nullptr;
    PrintPages pages = {};
};

/**
 * Shows panels. One provider serves the process: dialogs in the application, queued answers where nobody is watching.
 */
class PanelProvider
{
public:
    virtual ~PanelProvider() = default;
    /** Shows the panel and returns when it closes. */
    virtual PanelAnswer run(const PanelRequest &request) = 0;
};

/** Shows a panel through the provider of this process; cancelled if none was set. Main thread only. */
PanelAnswer runPanel(const PanelRequest &request);

/** Sets the provider and returns the previous one. */
std::unique_ptr<PanelProvider> setPanelProvider(std::unique_ptr<PanelProvider> provider);

} // namespace platform
