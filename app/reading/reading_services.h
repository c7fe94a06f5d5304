#pragma once

#include "app/modules/program_files.h"
#include "image/services/picture_service.h"
#include "jobs/services/page_service.h"
#include "jobs/services/recipe_service.h"

/**
 * The services of scripts in a process with windows. What they tell of a picture comes from a worker, so that no decoder runs here; they
 * wait for it if it is not known yet.
 */
namespace window {

class ReadingFiles : public script::ProgramFiles
{
    Q_OBJECT

public:
    using ProgramFiles::ProgramFiles;

    QVariant storedSize(const QString &path) const override;
    QVariantMap picture(const QString &path) const override;
    QVariant facts(const QString &path) const override;
    QString profileName(const QString &path) const override;
    QVariantMap lostMetadata(const QString &from, const QString &to) const override;
    QString writeComment(const QString &path, const QString &comment) const override;
    QVariantMap readComment(const QString &path) const override;
    int pagesLostToComment(const QString &path) const override;
    bool holdsComment(const QString &path) const override;
    QVariantMap readFields(const QString &path) const override;
    QVariantMap writeFields(const QString &path, const QVariantMap &work) const override;
};

class ReadingPictures : public image::PictureService
{
    Q_OBJECT

public:
    using PictureService::PictureService;

    double resolution(const QString &path) const override;
    bool keepsProfile(const QString &path, const QString &typeIdentifier) const override;
};

class ReadingRecipes : public jobs::RecipeService
{
    Q_OBJECT

public:
    using RecipeService::RecipeService;

    QVariantMap planOutput(const QString &path, const QVariantMap &recipe) const override;
    QString problemOf(const QString &text, const QString &folder, bool filesAreOpened) const override;

protected:
    text::TokenFacts tokenFacts(const QString &path, int index) const override;
};

class ReadingPages : public jobs::PageService
{
    Q_OBJECT

public:
    using PageService::PageService;

    QVariantMap textsOf(const QString &path) const override;
};

} // namespace window
