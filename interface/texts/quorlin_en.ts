<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>background-action</name>
    <message numerus="yes">
        <source>Add Background to %n Pictures</source>
        <translation>
            <numerusform>Add Background to %n Picture</numerusform>
            <numerusform>Add Background to %n Pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add Border to %n Pictures</source>
        <translation>
            <numerusform>Add Border to %n Picture</numerusform>
            <numerusform>Add Border to %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>by-recipe</name>
    <message numerus="yes">
        <source>%n more pictures left out</source>
        <translation>
            <numerusform>%n more picture left out</numerusform>
            <numerusform>%n more pictures left out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-job</name>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments written</source>
        <translation>
            <numerusform>%n comment written</numerusform>
            <numerusform>%n comments written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments reverted</source>
        <translation>
            <numerusform>%n comment reverted</numerusform>
            <numerusform>%n comments reverted</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-questions</name>
    <message numerus="yes">
        <source>%n more pages</source>
        <translation>
            <numerusform>%n more page</numerusform>
            <numerusform>%n more pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files with several pages are left out, since writing would remove %1: %2.</source>
        <translation>
            <numerusform>%n file with several pages is left out, since writing would remove %1: %2.</numerusform>
            <numerusform>%n files with several pages are left out, since writing would remove %1: %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files have types that cannot hold a comment and stay unchanged.</source>
        <translation>
            <numerusform>%n file has a type that cannot hold a comment and stays unchanged.</numerusform>
            <numerusform>%n files have types that cannot hold a comment and stay unchanged.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Clear the comments of %n pictures?</source>
        <translation>
            <numerusform>Clear the comment of this picture?</numerusform>
            <numerusform>Clear the comments of %n pictures?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write the comment into %n pictures?</source>
        <translation>
            <numerusform>Write the comment into this picture?</numerusform>
            <numerusform>Write the comment into %n pictures?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-run</name>
    <message numerus="yes">
        <source>%n more pages were removed. This cannot be undone.</source>
        <translation>
            <numerusform>%n more page was removed. This cannot be undone.</numerusform>
            <numerusform>%n more pages were removed. This cannot be undone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It has %n more pages, which would be lost.</source>
        <translation>
            <numerusform>It has %n more page, which would be lost.</numerusform>
            <numerusform>It has %n more pages, which would be lost.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more files</source>
        <translation>
            <numerusform>%n more file</numerusform>
            <numerusform>%n more files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>contact-action</name>
    <message numerus="yes">
        <source>Make %n Pages</source>
        <translation>
            <numerusform>Make %n Page</numerusform>
            <numerusform>Make %n Pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>convert-action</name>
    <message numerus="yes">
        <source>Convert %n Pictures</source>
        <translation>
            <numerusform>Convert %n Picture</numerusform>
            <numerusform>Convert %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>crop-action</name>
    <message numerus="yes">
        <source>Crop %n Pictures</source>
        <translation>
            <numerusform>Crop %n Picture</numerusform>
            <numerusform>Crop %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>crop-step</name>
    <message numerus="yes">
        <source>trim %n pixels</source>
        <translation>
            <numerusform>trim %n pixel</numerusform>
            <numerusform>trim %n pixels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>hand-page</name>
    <message numerus="yes">
        <source>%n were skipped.</source>
        <translation>
            <numerusform>%n was skipped.</numerusform>
            <numerusform>%n were skipped.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>hand-pane</name>
    <message numerus="yes">
        <source>Remove all %n folders from the list?</source>
        <translation>
            <numerusform>Remove the folder from the list?</numerusform>
            <numerusform>Remove all %n folders from the list?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders are already in the list.</source>
        <translation>
            <numerusform>%n folder is already in the list.</numerusform>
            <numerusform>%n folders are already in the list.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n folders can have a key.</source>
        <translation>
            <numerusform>Only %n folder can have a key.</numerusform>
            <numerusform>Only %n folders can have a key.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>history</name>
    <message numerus="yes">
        <source>Undo Adding %n Files</source>
        <translation>
            <numerusform>Undo Adding %n File</numerusform>
            <numerusform>Undo Adding %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Adding %n Files</source>
        <translation>
            <numerusform>Redo Adding %n File</numerusform>
            <numerusform>Redo Adding %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Removing %n Files</source>
        <translation>
            <numerusform>Undo Removing %n File</numerusform>
            <numerusform>Undo Removing %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Removing %n Files</source>
        <translation>
            <numerusform>Redo Removing %n File</numerusform>
            <numerusform>Redo Removing %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo %1 of %n Files</source>
        <translation>
            <numerusform>Undo %1 of %n File</numerusform>
            <numerusform>Undo %1 of %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo %1 of %n Files</source>
        <translation>
            <numerusform>Redo %1 of %n File</numerusform>
            <numerusform>Redo %1 of %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n files) belongs to an earlier session. Undo it?</source>
        <translation>
            <numerusform>%1 (%n file) belongs to an earlier session. Undo it?</numerusform>
            <numerusform>%1 (%n files) belongs to an earlier session. Undo it?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Moving %n Rows</source>
        <translation>
            <numerusform>Undo Moving %n Row</numerusform>
            <numerusform>Undo Moving %n Rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Moving %n Rows</source>
        <translation>
            <numerusform>Redo Moving %n Row</numerusform>
            <numerusform>Redo Moving %n Rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Writing %n Ratings</source>
        <translation>
            <numerusform>Undo Writing %n Rating</numerusform>
            <numerusform>Undo Writing %n Ratings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>input</name>
    <message numerus="yes">
        <source>%n already in the list</source>
        <translation>
            <numerusform>%n already in the list</numerusform>
            <numerusform>%n already in the list</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecar file</numerusform>
            <numerusform>%n sidecar files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n do not match the filter</source>
        <translation>
            <numerusform>%n does not match the filter</numerusform>
            <numerusform>%n do not match the filter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files…</source>
        <translation>
            <numerusform>Reading %n file…</numerusform>
            <numerusform>Reading %n files…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>input-words</name>
    <message numerus="yes">
        <source>%n files were not added: they are not supported pictures.</source>
        <translation>
            <numerusform>%n file was not added: it is not a supported picture.</numerusform>
            <numerusform>%n files were not added: they are not supported pictures.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n file is not shown because %1 cannot use it.</numerusform>
            <numerusform>%n files are not shown because %1 cannot use them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were not added: they are not files.</source>
        <translation>
            <numerusform>%n item was not added: it is not a file.</numerusform>
            <numerusform>%n items were not added: they are not files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n folder is not shown because %1 cannot use it.</numerusform>
            <numerusform>%n folders are not shown because %1 cannot use them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not folders.</source>
        <translation>
            <numerusform>%n file was not added: it is not a folder.</numerusform>
            <numerusform>%n files were not added: they are not folders.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because folders are being renamed.</source>
        <translation>
            <numerusform>%n file is not shown because folders are being renamed.</numerusform>
            <numerusform>%n files are not shown because folders are being renamed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>interrupted</name>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 pictures are done.</source>
        <translation>
            <numerusform>%1 was interrupted: %2 of %3 pictures is done.</numerusform>
            <numerusform>%1 was interrupted: %2 of %3 pictures are done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing “%1” was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>Undoing “%1” was interrupted: %2 of %3 files is done.</numerusform>
            <numerusform>Undoing “%1” was interrupted: %2 of %3 files are done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files have their new names.</source>
        <translation>
            <numerusform>%1 was interrupted: %2 of %3 files has its new name.</numerusform>
            <numerusform>%1 was interrupted: %2 of %3 files have their new names.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>%1 was interrupted: %2 of %3 files is done.</numerusform>
            <numerusform>%1 was interrupted: %2 of %3 files are done.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>interrupted-bar</name>
    <message numerus="yes">
        <source>Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.</source>
        <translation>
            <numerusform>Writing metadata was interrupted: %n picture was changed. You can revert it in the log.</numerusform>
            <numerusform>Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>list-tools</name>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n file copied</numerusform>
            <numerusform>%n files copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>log-page</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln entries</source>
        <translation>
            <numerusform>%1 of %Ln entry</numerusform>
            <numerusform>%1 of %Ln entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Rows</source>
        <translation>
            <numerusform>Copy Row</numerusform>
            <numerusform>Copy %n Rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revert %n Comments</source>
        <translation>
            <numerusform>Revert Comment</numerusform>
            <numerusform>Revert %n Comments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments selected</source>
        <translation>
            <numerusform>%n comment selected</numerusform>
            <numerusform>%n comments selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No entries yet. Each run is recorded here, and the last %Ln entries are kept.</source>
        <translation>
            <numerusform>No entries yet. Each run is recorded here, and the last entry is kept.</numerusform>
            <numerusform>No entries yet. Each run is recorded here, and the last %Ln entries are kept.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln entries from the log?</source>
        <translation>
            <numerusform>Remove the only entry from the log?</numerusform>
            <numerusform>Remove all %Ln entries from the log?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n file restored</numerusform>
            <numerusform>%n files restored</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>main-window</name>
    <message numerus="yes">
        <source>Opened %1, which contains the %n folders</source>
        <translation>
            <numerusform>Opened %1, which contains the folder</numerusform>
            <numerusform>Opened %1, which contains the %n folders</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-page</name>
    <message numerus="yes">
        <source>%n lines copied</source>
        <translation>
            <numerusform>%n line copied</numerusform>
            <numerusform>%n lines copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures, differences: %1</source>
        <translation>
            <numerusform>%n picture, differences: %1</numerusform>
            <numerusform>%n pictures, differences: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n properties</source>
        <translation>
            <numerusform>%n property</numerusform>
            <numerusform>%n properties</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revert %n</source>
        <translation>
            <numerusform>Revert</numerusform>
            <numerusform>Revert %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write into All %n…</source>
        <translation>
            <numerusform>Write into %n…</numerusform>
            <numerusform>Write into All %n…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>move-run</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>moves</name>
    <message numerus="yes">
        <source>%n need attention</source>
        <translation>
            <numerusform>%n needs attention</numerusform>
            <numerusform>%n need attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unchanged</numerusform>
            <numerusform>%n unchanged</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecar file</numerusform>
            <numerusform>%n sidecar files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>output-pane</name>
    <message numerus="yes">
        <source>%n pictures have a type that cannot be written.</source>
        <translation>
            <numerusform>%n picture has a type that cannot be written.</numerusform>
            <numerusform>%n pictures have a type that cannot be written.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>own-results</name>
    <message numerus="yes">
        <source>%n results of earlier runs not added</source>
        <translation>
            <numerusform>%n result of earlier runs not added</numerusform>
            <numerusform>%n results of earlier runs not added</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>platform</name>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>preset-pane</name>
    <message numerus="yes">
        <source>%1 of %n presets imported</source>
        <translation>
            <numerusform>%1 of %n preset imported</numerusform>
            <numerusform>%1 of %n presets imported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n presets imported</source>
        <translation>
            <numerusform>%n preset imported</numerusform>
            <numerusform>%n presets imported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renamed because their names were in use</source>
        <translation>
            <numerusform>%n renamed because its name was in use</numerusform>
            <numerusform>%n renamed because their names were in use</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>presets</name>
    <message numerus="yes">
        <source>A name can have up to %n characters.</source>
        <translation>
            <numerusform>A name can have up to %n character.</numerusform>
            <numerusform>A name can have up to %n characters.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets in this file cannot be used.</source>
        <translation>
            <numerusform>%1 of %n preset in this file cannot be used.</numerusform>
            <numerusform>%1 of %n presets in this file cannot be used.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>print</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures could not be read</source>
        <translation>
            <numerusform>%n picture could not be read</numerusform>
            <numerusform>%n pictures could not be read</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>properties</name>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln pixel</numerusform>
            <numerusform>%Ln pixels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits</source>
        <translation>
            <numerusform>%Ln bit</numerusform>
            <numerusform>%Ln bits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>recipe-action</name>
    <message numerus="yes">
        <source>Run Recipe on %n Pictures</source>
        <translation>
            <numerusform>Run Recipe on %n Picture</numerusform>
            <numerusform>Run Recipe on %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>recipe-run</name>
    <message numerus="yes">
        <source>Dry run: %n files would be written</source>
        <translation>
            <numerusform>Dry run: %n file would be written</numerusform>
            <numerusform>Dry run: %n files would be written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files made</source>
        <translation>
            <numerusform>%n file made</numerusform>
            <numerusform>%n files made</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>recipes</name>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>Replace %n Original</numerusform>
            <numerusform>Replace %n Originals</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n file is replaced.</numerusform>
            <numerusform>%n files are replaced.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>recovered</name>
    <message numerus="yes">
        <source>%n files have their new names</source>
        <translation>
            <numerusform>%n file has its new name</numerusform>
            <numerusform>%n files have their new names</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n file restored</numerusform>
            <numerusform>%n files restored</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files not started</source>
        <translation>
            <numerusform>%n file not started</numerusform>
            <numerusform>%n files not started</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-action</name>
    <message numerus="yes">
        <source>Rename %n Folders</source>
        <translation>
            <numerusform>Rename %n Folder</numerusform>
            <numerusform>Rename %n Folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Files</source>
        <translation>
            <numerusform>Rename %n File</numerusform>
            <numerusform>Rename %n Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders renamed</source>
        <translation>
            <numerusform>%n folder renamed</numerusform>
            <numerusform>%n folders renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n file renamed</numerusform>
            <numerusform>%n files renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names restored</source>
        <translation>
            <numerusform>%n name restored</numerusform>
            <numerusform>%n names restored</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names restored</source>
        <translation>
            <numerusform>%n name restored</numerusform>
            <numerusform>%n names restored</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-card</name>
    <message numerus="yes">
        <source>%n names are too short and stay unchanged.</source>
        <translation>
            <numerusform>%n name is too short and stays unchanged.</numerusform>
            <numerusform>%n names are too short and stay unchanged.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-pane</name>
    <message numerus="yes">
        <source>The counter needs more digits: the last number has %n.</source>
        <translation>
            <numerusform>The counter needs more digits: the last number has %n.</numerusform>
            <numerusform>The counter needs more digits: the last number has %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use %n Digits</source>
        <translation>
            <numerusform>Use %n Digit</numerusform>
            <numerusform>Use %n Digits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>resize-action</name>
    <message numerus="yes">
        <source>Resize %n Pictures</source>
        <translation>
            <numerusform>Resize %n Picture</numerusform>
            <numerusform>Resize %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>round-action</name>
    <message numerus="yes">
        <source>Round the Corners of %n Pictures</source>
        <translation>
            <numerusform>Round the Corners of %n Picture</numerusform>
            <numerusform>Round the Corners of %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sheet-run</name>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sort-action</name>
    <message numerus="yes">
        <source>Sort %n Files into Folders</source>
        <translation>
            <numerusform>Sort %n File into Folders</numerusform>
            <numerusform>Sort %n Files into Folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Files into Folders</source>
        <translation>
            <numerusform>Copy %n File into Folders</numerusform>
            <numerusform>Copy %n Files into Folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Link %n Files into Folders</source>
        <translation>
            <numerusform>Link %n File into Folders</numerusform>
            <numerusform>Link %n Files into Folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files sorted</source>
        <translation>
            <numerusform>%n file sorted</numerusform>
            <numerusform>%n files sorted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n file copied</numerusform>
            <numerusform>%n files copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links created</source>
        <translation>
            <numerusform>%n link created</numerusform>
            <numerusform>%n links created</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n file restored</numerusform>
            <numerusform>%n files restored</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files moved</source>
        <translation>
            <numerusform>%n file moved</numerusform>
            <numerusform>%n files moved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files linked</source>
        <translation>
            <numerusform>%n file linked</numerusform>
            <numerusform>%n files linked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders made</source>
        <translation>
            <numerusform>%n folder made</numerusform>
            <numerusform>%n folders made</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sort-tree</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders will be made, counting parents</source>
        <translation>
            <numerusform>%n folder will be made, counting parents</numerusform>
            <numerusform>%n folders will be made, counting parents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>status-bar</name>
    <message numerus="yes">
        <source>Only failed pictures are shown: %n</source>
        <translation>
            <numerusform>Only failed pictures are shown: %n</numerusform>
            <numerusform>Only failed pictures are shown: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stars or more</source>
        <translation>
            <numerusform>%n star or more</numerusform>
            <numerusform>%n stars or more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>step-words</name>
    <message numerus="yes">
        <source>%n characters from the %1.</source>
        <translation>
            <numerusform>%n character from the %1.</numerusform>
            <numerusform>%n characters from the %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>turn-action</name>
    <message numerus="yes">
        <source>Rotate and Flip %n Pictures</source>
        <translation>
            <numerusform>Rotate and Flip %n Picture</numerusform>
            <numerusform>Rotate and Flip %n Pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Flip %n Pictures</source>
        <translation>
            <numerusform>Flip %n Picture</numerusform>
            <numerusform>Flip %n Pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rotate %n Pictures</source>
        <translation>
            <numerusform>Rotate %n Picture</numerusform>
            <numerusform>Rotate %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>undo-run</name>
    <message numerus="yes">
        <source>%n files can be restored.</source>
        <translation>
            <numerusform>%n file can be restored.</numerusform>
            <numerusform>%n files can be restored.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments can be reverted.</source>
        <translation>
            <numerusform>%n comment can be reverted.</numerusform>
            <numerusform>%n comments can be reverted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n have already been reverted.</source>
        <translation>
            <numerusform>%n has already been reverted.</numerusform>
            <numerusform>%n have already been reverted.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>watermark-action</name>
    <message numerus="yes">
        <source>Watermark %n Pictures</source>
        <translation>
            <numerusform>Watermark %n Picture</numerusform>
            <numerusform>Watermark %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>web-action</name>
    <message numerus="yes">
        <source>Make Page of %n Pictures</source>
        <translation>
            <numerusform>Make Page of %n Picture</numerusform>
            <numerusform>Make Page of %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::FolderTree</name>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PictureModel</name>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n star</numerusform>
            <numerusform>%n stars</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PictureTable</name>
    <message numerus="yes">
        <source>Only %n stars or more</source>
        <translation>
            <numerusform>Only %n star or more</numerusform>
            <numerusform>Only %n stars or more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::RunRows</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln problem</numerusform>
            <numerusform>%Ln problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::SlotRows</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>write-run</name>
    <message numerus="yes">
        <source>%n originals will be replaced by their results.</source>
        <translation>
            <numerusform>%n original will be replaced by its result.</numerusform>
            <numerusform>%n originals will be replaced by their results.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be written</source>
        <translation>
            <numerusform>Dry run: %n picture would be written</numerusform>
            <numerusform>Dry run: %n pictures would be written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures done</source>
        <translation>
            <numerusform>%n picture done</numerusform>
            <numerusform>%n pictures done</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>writes</name>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>Replace %n Original</numerusform>
            <numerusform>Replace %n Originals</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n file is replaced.</numerusform>
            <numerusform>%n files are replaced.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>log-fields</name>
    <message numerus="yes">
        <source>Reverting: %n pictures so far</source>
        <translation>
            <numerusform>Reverting: %n picture so far</numerusform>
            <numerusform>Reverting: %n pictures so far</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>field-reverting</name>
    <message numerus="yes">
        <source>%n pictures can be reverted.</source>
        <translation>
            <numerusform>%n picture can be reverted.</numerusform>
            <numerusform>%n pictures can be reverted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures reverted</source>
        <translation>
            <numerusform>%n picture reverted</numerusform>
            <numerusform>%n pictures reverted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>field-run</name>
    <message numerus="yes">
        <source>Dry run: %n pictures would be changed</source>
        <translation>
            <numerusform>Dry run: %n picture would be changed</numerusform>
            <numerusform>Dry run: %n pictures would be changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write metadata into %n pictures?</source>
        <translation>
            <numerusform>Write metadata into %n picture?</numerusform>
            <numerusform>Write metadata into %n pictures?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>For %n of them, it is written into a sidecar file.</source>
        <translation>
            <numerusform>For %n of them, it is written into a sidecar file.</numerusform>
            <numerusform>For %n of them, it is written into a sidecar file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures: see their rows in the list.</source>
        <translation>
            <numerusform>%n more picture: see its row in the list.</numerusform>
            <numerusform>%n more pictures: see their rows in the list.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures changed</source>
        <translation>
            <numerusform>%n picture changed</numerusform>
            <numerusform>%n pictures changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unchanged</numerusform>
            <numerusform>%n unchanged</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message numerus="yes">
        <source>%n with conflicting values</source>
        <translation>
            <numerusform>%n with conflicting values</numerusform>
            <numerusform>%n with conflicting values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecar file</numerusform>
            <numerusform>%n sidecar files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-action</name>
    <message numerus="yes">
        <source>Write Metadata into %n Pictures</source>
        <translation>
            <numerusform>Write Metadata into %n Picture</numerusform>
            <numerusform>Write Metadata into %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-words</name>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n star</numerusform>
            <numerusform>%n stars</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-pane</name>
    <message numerus="yes">
        <source>%1, %n used</source>
        <translation>
            <numerusform>%1, %n used</numerusform>
            <numerusform>%1, %n used</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keywords imported</source>
        <translation>
            <numerusform>%n keyword imported</numerusform>
            <numerusform>%n keywords imported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keywords exported</source>
        <translation>
            <numerusform>%n keyword exported</numerusform>
            <numerusform>%n keywords exported</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ratings</name>
    <message numerus="yes">
        <source>Write the ratings of %n pictures into their files?</source>
        <translation>
            <numerusform>Write the rating of %n picture into its file?</numerusform>
            <numerusform>Write the ratings of %n pictures into their files?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ratings written</source>
        <translation>
            <numerusform>%n rating written</numerusform>
            <numerusform>%n ratings written</numerusform>
        </translation>
    </message>
</context>
</TS>
