#pragma once

#include "image/types/output_types.h"
#include "platform/imageio/source/image_source.h"

#include <QColor>
#include <QList>
#include <QPoint>
#include <QSize>
#include <QString>

#include <optional>
#include <variant>

/**
 * What is to be done to each picture: operations in order, then outputs. Plain values, validated when they are read;
 * docs/recipes.md describes the file format.
 */
namespace image {

/** The position of something within something larger. Attention is the part that draws the eye. */
enum class Place { TopLeft, Top, TopRight, Left, Center, Right, BottomLeft, Bottom, BottomRight, Attention };

/** The units of lengths; all except pixels depend on a resolution. */
enum class RecipeUnit { Pixel, Millimetre, Centimetre, Inch, Point, Pica };

/** How the lengths of an operation are interpreted. */
struct Scale
{
    RecipeUnit unit = RecipeUnit::Pixel;
    std::optional<double> dpi; ///< 1 to 10000; the picture then has it. Without it the picture's own is used
};

enum class ResizeBy { Width, Height, Longest, Shortest, Percent, Megapixels, Box };
enum class BoxFit { Inside, Fill, Stretch, Pad };

struct ResizeOperation
{
    ResizeBy by = ResizeBy::Longest;
    double number = 0; ///< a length, percentage or megapixels
    double boxWidth = 0;
    double boxHeight = 0;
    BoxFit fit = BoxFit::Inside;
    Place position = Place::Center;
    QColor color = Qt::white;
    bool enlarges = false;
    Scale scale;
};

enum class CropBy { Size, Ratio, Percent, Trim };

struct CropOperation
{
    CropBy by = CropBy::Size;
    double width = 0;   ///< lengths, or the two numbers of a ratio
    double height = 0;  ///< with Trim both are the totals that are cut off
    bool turns = true;  ///< the larger number of a ratio goes with the longer side of the picture
    double percent = 0; ///< 0 to 99, the total that is cut off
    Place position = Place::Center;
    double right = 0; ///< moves the part
    double down = 0;
    Scale scale;
};

struct TurnOperation
{
    double degrees = 0;          ///< clockwise, -360 to 360
    std::optional<QColor> color; ///< of the new corners; transparent without one
};

struct FlipOperation
{
    Qt::Orientation direction = Qt::Horizontal; ///< Horizontal: left and right are swapped
};

enum class RoundShape { Rectangle, Circle, Ellipse };

struct Band
{
    double width = 0;
    QColor color;
};

struct RoundOperation
{
    RoundShape shape = RoundShape::Rectangle;
    double radius = 0;
    std::optional<QColor> color; ///< outside the shape; transparent without one
    std::optional<Band> band;    ///< along the inside of the edge
    Scale scale;
};

/** A picture named in a recipe. */
struct RecipePicture
{
    QString path;                 ///< absolute; empty if there is none
    platform::ImageSource source; ///< opened with the recipe

    bool isNamed() const { return !path.isEmpty(); }
};

struct BackgroundOperation
{
    QColor color;
    RecipePicture pattern; ///< instead of the colour
};

struct FrameOperation
{
    double width = 0;
    QColor color = Qt::white;
    Scale scale;
};

struct WatermarkOperation
{
    QString text; ///< with tokens
    QString font;
    QColor color = Qt::white;
    RecipePicture picture; ///< instead of the text
    double size = 0;       ///< percent: of the picture's height for text, of its width for a picture
    Place position = Place::BottomRight;
    double margin = 2; ///< percentage of the shorter side
    double angle = 0;  ///< degrees clockwise
    double opacity = 70;
    bool isTiled = false;
};

enum class SharpenAmount { Low, Standard, High };

struct SharpenOperation
{
    SharpenAmount amount = SharpenAmount::Standard;
};

struct ProfileOperation
{
    QString name;       ///< "sRGB", "Display P3", "Adobe RGB", "gray", or the file's path
    QByteArray profile; ///< ICC; empty for grey
};

using Operation =
    std::variant<ResizeOperation, CropOperation, TurnOperation, FlipOperation, RoundOperation, BackgroundOperation,
                 FrameOperation, WatermarkOperation, SharpenOperation, ProfileOperation>;

/** One entry of the list of operations. */
struct RecipeStep
{
    Operation operation;
    bool isOff = false;
};

enum class KeptMetadata { Keep, Copyright, None };
enum class FileDates { Now, Keep };
enum class IfTaken { Number, Replace, Skip, Current };

struct RecipeOutput
{
    OutputType type = OutputType::Original;
    std::optional<int> quality; ///< 1 to 100
    bool isLossless = false;
    std::optional<qint64> maxBytes;
    QString name = QStringLiteral("{name}"); ///< tokens
    QString folder;                          ///< tokens; relative to the base folder, or absolute
    QList<RecipeStep> operations;
    std::optional<ProfileOperation> profile;
    KeptMetadata metadata = KeptMetadata::Keep;
    bool keepsLocation = true;
    std::optional<double> dpi;
    QColor matte = Qt::white;
    FileDates dates = FileDates::Now;
    IfTaken ifTaken = IfTaken::Number;
};

struct Recipe
{
    QString name;
    QList<RecipeStep> operations;
    QList<RecipeOutput> outputs; ///< at least one
};

} // namespace image
