// The services that represent the window and its views: mainWindowClass, mainViewController, myMainPhotoView,
// my2ndPhotoView.

import { mainViewController, mainWindowClass, my2ndPhotoView, myMainPhotoView } from "quorlin";

/** What a window and its views receive when they are created from their form; kept as long as the window. */
export class Controllers {
    constructor(form) {
        this.window = new mainWindowClass();
        this.view = new mainViewController();
        this.photoViews = [new myMainPhotoView(), new my2ndPhotoView()];
        this.photoViews.forEach((view) => view.awakeFromNib());
        this.window.windowDidLoad();
        this.view.window = form.control("mainWindow");
    }
}
