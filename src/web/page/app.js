// The page's start: the menu, or the form this tab already has open; and what
// happens when the server refuses an action or the form goes away.
'use strict';

(() => {
  function backToMenu(reason) {
    Api.setToken(null);
    Form.close();
    Menu.show(openForm, reason);
  }

  function openForm(first) {
    Form.start(first, () => backToMenu());
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

  async function closeForm() {
    if (!window.confirm('Close this screen without saving?')) return;
    try {
      await Api.request('DELETE', '/api/forms');
    } catch (e) {
      // A form the server has already closed is just as gone.
    }
    backToMenu();
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
