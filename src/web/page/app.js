// The page's start: the menu, or the form this tab already has open; and what
// happens when the server refuses an action or the form goes away.
'use strict';

(() => {
  function backToMenu(reason) {
    Api.setToken(null);
    Form.close();
    Menu.show(openForm, reason);
  }

  // The form closed itself: the server lets its token go, and the tab goes back to
  // the menu.
  async function formClosed() {
    try {
      await Api.request('DELETE', '/api/forms');
    } catch (e) {
      // A form the server has already closed is just as gone.
    }
    backToMenu();
  }

  function openForm(first) {
    Form.start(first, formClosed);
  }

  // A refused action leaves the form as it was: say why and draw it afresh.
  async function refused(e) {
    if (e.status === 401 || e.status === 410) {
      backToMenu(e.message);
      return;
    }
    try {
      Form.draw(await Api.json('GET', '/api/state'));
    } catch (again) {
      if (again.status === 401 || again.status === 410) return backToMenu(again.message);
    }
    Form.showRefusal(e.message);
  }

  // The window's close box closes the screen as the clerk closes it: the form asks
  // its own question about unsaved lines, and may stay.
  function closeForm() {
    Api.event(['close']);
  }

  document.addEventListener('DOMContentLoaded', async () => {
    Api.listen((state) => Form.draw(state), refused);
    document.getElementById('title-close').addEventListener('click', closeForm);
    if (!Api.token()) return Menu.show(openForm);
    try {
      openForm(await Api.json('GET', '/api/state'));
    } catch (e) {
      backToMenu();
    }
  });
})();
