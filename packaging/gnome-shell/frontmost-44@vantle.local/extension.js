// Tells Vantle the id of the application in front, and nothing else, while Vantle is on the bus.
const {Gio, GLib, Shell} = imports.gi;

const NAME = 'local.vantle.Vantle';
const PATH = '/local/vantle/Vantle/ShellFrontmost';
const INTERFACE = 'local.vantle.Frontmost';

class Frontmost {
    enable() {
        this._tracker = Shell.WindowTracker.get_default();
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, NAME, Gio.BusNameWatcherFlags.NONE,
            (_bus, _name, owner) => this._begin(owner), () => this._end());
    }

    disable() {
        Gio.bus_unwatch_name(this._watch);
        if (this._owner)
            this._call('end', null);
        this._end();
        this._tracker = null;
    }

    _begin(owner) {
        this._end();
        this._owner = owner;
        this._focus = this._tracker.connect('notify::focus-app', () => this._report());
        this._report();
    }

    _end() {
        if (this._focus)
            this._tracker.disconnect(this._focus);
        this._focus = this._owner = null;
    }

    _report() {
        const app = this._tracker.focus_app;
        // Without a desktop file an application's id is made up; its windows have a class.
        const id = app?.is_window_backed() ? app.get_windows()[0]?.get_wm_class() : app?.get_id();
        this._call('report', new GLib.Variant('(s)', [id ?? '']));
    }

    _call(method, parameters) {
        Gio.DBus.session.call(this._owner, PATH, INTERFACE, method, parameters, null,
            Gio.DBusCallFlags.NO_AUTO_START, -1, null, null);
    }
}

/* exported init */
function init() {
    return new Frontmost();
}
